// The half court as a widget: shot marks or zone sums, whatever its owner gives it. Decides nothing but which
// mark the pointer is at, or which one the arrow keys have reached, and shows the tool tip that belongs to
// it.
#pragma once

#include "court/CourtPicture.h"

#include <QStringList>
#include <QWidget>

#include <optional>
#include <vector>

namespace hooptab {

class CourtView : public QWidget {
  Q_OBJECT
 public:
  explicit CourtView(QWidget* parent = nullptr);

  void setColours(const CourtColours& colours);
  void setMarks(std::vector<CourtMark> marks, QStringList toolTips); // a tool tip for each mark
  const std::vector<CourtMark>& marks() const { return m_marks; }
  void setZones(std::vector<CourtZoneText> zones);
  void showMarks();
  void showZones();
  void setTurn(CourtPicture::Turn turn);
  // What is shown, without what the pointer is at, baseline at the top.
  void paintOn(QPainter& painter, const QRectF& area) const;

  // The mark at a position in the widget, the nearest within reach; -1 for none.
  [[nodiscard]] int markAt(const QPointF& position) const;
  // The place under a position; nothing beside the court.
  [[nodiscard]] std::optional<court::Place> placeAt(const QPointF& position) const;

  QSize sizeHint() const override;
  bool hasHeightForWidth() const override { return true; }
  int heightForWidth(int width) const override;

 signals:
  void markHovered(int index); // -1: none

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void leaveEvent(QEvent* event) override;
  bool event(QEvent* event) override;

 private:
  [[nodiscard]] QRectF pictureRect() const;
  [[nodiscard]] QPointF positionOf(const CourtMark& mark) const;
  [[nodiscard]] QString toolTipAt(const QPointF& position) const;
  void setHovered(int index);

  CourtColours m_colours;
  std::vector<CourtMark> m_marks;
  QStringList m_toolTips;
  std::vector<CourtZoneText> m_zones;
  CourtPicture::Turn m_turn = CourtPicture::Turn::BaselineLeft;
  bool m_showsZones = false;
  int m_hovered = -1;
};

} // namespace hooptab
