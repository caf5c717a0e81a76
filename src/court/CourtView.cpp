#include "court/CourtView.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QStyle>
#include <QStyleOptionFocusRect>
#include <QToolTip>

#include <algorithm>
#include <cmath>

namespace hooptab {

CourtView::CourtView(QWidget* parent) : QWidget(parent) {
  setMouseTracking(true);
  setFocusPolicy(Qt::TabFocus);
}

void CourtView::setColours(const CourtColours& colours) {
  if (colours == m_colours)
    return;
  m_colours = colours;
  update();
}

void CourtView::setMarks(std::vector<CourtMark> marks, QStringList toolTips) {
  m_toolTips = std::move(toolTips);
  if (marks == m_marks)
    return;
  const auto hovered = static_cast<std::size_t>(m_hovered);
  const bool staysHovered = m_hovered >= 0 && hovered < marks.size() &&
                            marks[hovered].place == m_marks[hovered].place &&
                            marks[hovered].isMade == m_marks[hovered].isMade;
  m_marks = std::move(marks);
  update();
  if (!staysHovered)
    setHovered(-1);
}

void CourtView::setZones(std::vector<CourtZoneText> zones) {
  if (zones == m_zones)
    return;
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
  // Room for the marks of shots at the very edge; they are small where the picture is.
  const double edge = std::min(9.0, std::min(width(), height()) * 0.03);
  return CourtPicture::fitted(QRectF(rect()).adjusted(edge, edge, -edge, -edge), m_turn);
}

QPointF CourtView::positionOf(const CourtMark& mark) const {
  const court::Place place = court::atEdge(mark.place);
  return CourtPicture::fromCourt(pictureRect(), m_turn).map(QPointF(place.x, place.y));
}

int CourtView::markAt(const QPointF& position) const {
  if (m_showsZones)
    return -1;
  constexpr double kReach = 9; // pixels
  int nearest = -1;
  double shortest = kReach;
  for (std::size_t i = 0; i < m_marks.size(); ++i) {
    const QPointF away = positionOf(m_marks[i]) - position;
    // The later of two marks at one spot is the one to be seen.
    if (const double distance = std::hypot(away.x(), away.y()); distance <= shortest) {
      shortest = distance;
      nearest = static_cast<int>(i);
    }
  }
  return nearest;
}

std::optional<court::Place> CourtView::placeAt(const QPointF& position) const {
  const QRectF picture = pictureRect();
  if (!picture.contains(position))
    return std::nullopt;
  const QPointF place = CourtPicture::fromCourt(picture, m_turn).inverted().map(position);
  return court::Place{place.x(), place.y()};
}

QString CourtView::toolTipAt(const QPointF& position) const {
  if (!m_showsZones)
    return m_toolTips.value(markAt(position));
  const auto place = placeAt(position);
  if (!place)
    return {};
  const court::ChartZone zone = court::chartZone(*place);
  const auto found = std::ranges::find(m_zones, zone, &CourtZoneText::zone);
  return found == m_zones.end() ? QString() : found->toolTip;
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

void CourtView::paintOn(QPainter& painter, const QRectF& area) const {
  constexpr auto kTurn = CourtPicture::Turn::BaselineTop;
  const QRectF fitted = CourtPicture::fitted(area, kTurn);
  const CourtPicture picture(m_colours);
  picture.paintCourt(painter, fitted, kTurn);
  if (m_showsZones)
    picture.paintZones(painter, fitted, kTurn, m_zones);
  else
    picture.paintMarks(painter, fitted, kTurn, m_marks);
}

void CourtView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const QRectF fitted = pictureRect();
  const CourtPicture picture(m_colours);
  picture.paintCourt(painter, fitted, m_turn);
  if (m_showsZones)
    picture.paintZones(painter, fitted, m_turn, m_zones);
  else
    picture.paintMarks(painter, fitted, m_turn, m_marks);
  if (!m_showsZones && m_hovered >= 0) { // once more and larger, above its neighbours
    CourtMark mark = m_marks[static_cast<std::size_t>(m_hovered)];
    mark.isHighlighted = true;
    picture.paintMarks(painter, fitted, m_turn, {mark});
  }
  if (hasFocus()) {
    QStyleOptionFocusRect option;
    option.initFrom(this);
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
  }
}

void CourtView::setHovered(int index) {
  if (index == m_hovered)
    return;
  m_hovered = index;
  setAccessibleDescription(m_toolTips.value(index));
  update();
  emit markHovered(index);
}

void CourtView::mouseMoveEvent(QMouseEvent* event) {
  setHovered(markAt(event->position()));
  QToolTip::showText(event->globalPosition().toPoint(), toolTipAt(event->position()), this);
}

// The arrow keys go through the marks in the order of the game.
void CourtView::keyPressEvent(QKeyEvent* event) {
  const int count = static_cast<int>(m_marks.size());
  const bool isForward = event->key() == Qt::Key_Right || event->key() == Qt::Key_Down;
  const bool isBack = event->key() == Qt::Key_Left || event->key() == Qt::Key_Up;
  if ((!isForward && !isBack) || m_showsZones || count == 0) {
    QWidget::keyPressEvent(event);
    return;
  }
  if (m_hovered < 0)
    setHovered(isForward ? 0 : count - 1);
  else
    setHovered((m_hovered + (isForward ? 1 : count - 1)) % count);
  if (m_hovered < 0) // whoever heard of it took the marks away
    return;
  const QPointF position = positionOf(m_marks[static_cast<std::size_t>(m_hovered)]);
  QToolTip::showText(mapToGlobal(position.toPoint()), m_toolTips.value(m_hovered), this);
}

void CourtView::focusOutEvent(QFocusEvent* event) {
  setHovered(-1);
  QWidget::focusOutEvent(event);
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
