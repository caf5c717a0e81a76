#include "appearance/CourtView.h"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QToolTip>

#include <cmath>

namespace hooptab {

CourtView::CourtView(QWidget* parent) : QWidget(parent) {
  setMouseTracking(true);
}

void CourtView::setColours(const CourtColours& colours) {
  m_colours = colours;
  update();
}

void CourtView::setMarks(std::vector<CourtMark> marks, QStringList toolTips) {
  m_marks = std::move(marks);
  m_toolTips = std::move(toolTips);
  m_hovered = -1;
  update();
}

void CourtView::setZones(std::vector<CourtZoneText> zones) {
  m_zones = std::move(zones);
  update();
}

void CourtView::showMarks() {
  m_showsZones = false;
  update();
}

void CourtView::showZones() {
  m_showsZones = true;
  setHovered(-1);
  update();
}

void CourtView::setTurn(CourtPicture::Turn turn) {
  if (turn == m_turn)
    return;
  m_turn = turn;
  updateGeometry();
  update();
}

QRectF CourtView::pictureRect() const {
  return CourtPicture::fitted(QRectF(rect()).adjusted(1, 1, -1, -1), m_turn);
}

int CourtView::markAt(const QPointF& position) const {
  if (m_showsZones)
    return -1;
  constexpr double kReach = 9; // pixels
  const QTransform transform = CourtPicture::fromCourt(pictureRect(), m_turn);
  int nearest = -1;
  double shortest = kReach;
  for (std::size_t i = 0; i < m_marks.size(); ++i) {
    const court::Place place = court::atEdge(m_marks[i].place);
    const QPointF away = transform.map(QPointF(place.x, place.y)) - position;
    if (const double distance = std::hypot(away.x(), away.y()); distance <= shortest) {
      shortest = distance;
      nearest = static_cast<int>(i);
    }
  }
  return nearest;
}

QSize CourtView::sizeHint() const {
  constexpr int kPixelsPerUnit = 2;
  const QSize size(static_cast<int>(court::kLength) * kPixelsPerUnit,
                   static_cast<int>(court::kWidth) * kPixelsPerUnit);
  return m_turn == CourtPicture::Turn::BaselineLeft ? size : size.transposed();
}

int CourtView::heightForWidth(int width) const {
  const QSize shape = sizeHint();
  return width * shape.height() / shape.width();
}

void CourtView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const QRectF fitted = pictureRect();
  const CourtPicture picture(m_colours);
  picture.paintCourt(painter, fitted, m_turn);
  if (m_showsZones) {
    picture.paintZones(painter, fitted, m_turn, m_zones);
    return;
  }
  picture.paintMarks(painter, fitted, m_turn, m_marks);
  if (m_hovered >= 0) { // once more and larger, above its neighbours
    CourtMark mark = m_marks[static_cast<std::size_t>(m_hovered)];
    mark.isHighlighted = true;
    picture.paintMarks(painter, fitted, m_turn, {mark});
  }
}

void CourtView::setHovered(int index) {
  if (index == m_hovered)
    return;
  m_hovered = index;
  update();
  emit markHovered(index);
}

void CourtView::mouseMoveEvent(QMouseEvent* event) {
  setHovered(markAt(event->position()));
  const bool hasText = m_hovered >= 0 && m_hovered < m_toolTips.size();
  QToolTip::showText(event->globalPosition().toPoint(), hasText ? m_toolTips[m_hovered] : QString(), this);
}

void CourtView::leaveEvent(QEvent*) {
  setHovered(-1);
}

bool CourtView::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip)
    return QWidget::event(event);
  return true; // shown at once while the pointer moves
}

} // namespace hooptab
