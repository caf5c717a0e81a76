// A scanned page on screen, with what was read from it drawn over it: ticked cells framed with a dot,
// doubtful ones with a question mark. Zoom, drag, a click or the keys on a cell; what a cell means is its
// owner's to say.
#pragma once

#include "forms/CheckedSheet.h"
#include "forms/GrayPicture.h"

#include <QGraphicsView>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace hooptab {

class ScanView : public QGraphicsView {
  Q_OBJECT

 public:
  explicit ScanView(QWidget* parent = nullptr);

  // The sheet must stay until another page is shown. The whole page is in sight at first.
  void showPage(std::shared_ptr<const GrayPicture> picture, const CheckedSheet& sheet);
  void showNothing();
  void describeCells(std::function<QString(std::size_t cell)> words) {
    m_words = std::move(words);
  } // tool tips

  std::optional<std::size_t> currentCell() const { return m_current; }
  // In sight, large enough to be judged.
  void goTo(std::size_t cell);
  [[nodiscard]] QPoint positionOf(std::size_t cell) const; // of its middle, in the viewport
  // Frames the cells of a count; an empty list frames none.
  void frame(std::vector<std::size_t> cells);

  void fitPage();
  void fitWidth();
  void zoomBy(double factor);

 signals:
  void cellPressed(std::size_t cell);

 protected:
  void drawForeground(QPainter* painter, const QRectF& exposed) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  bool viewportEvent(QEvent* event) override;

 private:
  enum class Fit { None, Page, Width };
  [[nodiscard]] QPolygonF outline(std::size_t cell, double margin) const; // margin in millimetres
  [[nodiscard]] QRectF rowHead(std::size_t cell) const;
  [[nodiscard]] std::optional<std::size_t> cellAt(const QPoint& position) const;
  [[nodiscard]] std::optional<std::size_t> neighbour(int key) const;
  void drawCell(QPainter& painter, std::size_t cell) const;
  void drawBadge(QPainter& painter, const QPolygonF& outline, const QColor& colour,
                 const QString& sign) const;
  void applyFit();

  std::shared_ptr<const GrayPicture> m_picture;
  const CheckedSheet* m_sheet = nullptr;
  std::function<QString(std::size_t)> m_words;
  std::optional<std::size_t> m_current;
  std::vector<std::size_t> m_framed;
  Fit m_fit = Fit::Page;
  QPoint m_pressedAt;
};

} // namespace hooptab
