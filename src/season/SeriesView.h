// A picture of numbers game by game as a widget: the game under the pointer, or the one that the arrow keys
// have reached, stands out with its tool tip; double click or Enter asks for it.
#pragma once

#include "appearance/ShownPicture.h"
#include "season/SeriesPicture.h"

#include <QWidget>

namespace hooptab {

class SeriesView : public QWidget, public ShownPicture {
  Q_OBJECT

 public:
  explicit SeriesView(const QString& name, QWidget* parent = nullptr);

  void show(SeriesDrawing drawing, QStringList toolTips); // a tool tip for each value
  const SeriesDrawing& drawing() const { return m_drawing; }

  bool hasPicture() const override { return !m_drawing.values.empty(); }
  QSize pictureSize() const override { return {760, 340}; }
  void paintPicture(QPainter& painter, const QRectF& area) const override;

  QSize sizeHint() const override { return {420, 200}; }
  QSize minimumSizeHint() const override { return {200, 110}; }

 signals:
  void valueAsked(int value);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  [[nodiscard]] std::optional<std::size_t> valueAt(const QPointF& place) const;
  void highlight(std::optional<std::size_t> value);

  SeriesDrawing m_drawing;
  QStringList m_toolTips;
  std::optional<std::size_t> m_highlighted;
};

} // namespace hooptab
