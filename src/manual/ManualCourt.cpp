#include "manual/ManualCourt.h"

#include "appearance/Theme.h"
#include "court/CourtColourChoice.h"

#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <chrono>
#include <cmath>

namespace hooptab {

namespace {

constexpr std::chrono::milliseconds kFlash{180};

} // namespace

ManualCourt::ManualCourt(const Settings& settings, QWidget* parent)
    : CourtView(parent), m_settings(settings), m_zones(zoneMapOf(settings)) {
  setObjectName(QStringLiteral("Court"));
  m_flash.setSingleShot(true);
  m_flash.setInterval(kFlash);
  connect(&m_flash, &QTimer::timeout, this, qOverload<>(&ManualCourt::update));
  applyColours();
}

void ManualCourt::applyColours() {
  setColours(wornCourt(CourtColourChoice::of(m_settings).colours));
  m_zones = zoneMapOf(m_settings);
}

std::optional<CourtClick> ManualCourt::clickAt(const QPointF& position) const {
  const auto place = placeAt(position);
  if (!place)
    return std::nullopt;
  const court::Place whole{std::clamp(std::floor(place->x), 0.0, court::kLength),
                           std::clamp(std::floor(place->y), 0.0, court::kWidth)};
  return CourtClick::of(whole, false, m_zones);
}

void ManualCourt::paintEvent(QPaintEvent* event) {
  CourtView::paintEvent(event);
  if (!m_flash.isActive())
    return;
  constexpr int kFrame = 3;
  QPainter painter(this);
  painter.setPen(QPen(Theme::missed(), kFrame, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
  painter.drawRect(rect().adjusted(1, 1, -kFrame + 1, -kFrame + 1));
}

void ManualCourt::mousePressEvent(QMouseEvent* event) {
  const bool isLeft = event->button() == Qt::LeftButton;
  if (event->buttons() != event->button() || (!isLeft && event->button() != Qt::RightButton))
    return; // a second button while one is held, or a third one
  if (const auto click = clickAt(event->position()))
    return emit pressed(click->kind, static_cast<int>(click->place.x), static_cast<int>(click->place.y),
                        isLeft);
  m_flash.start();
  update();
}

void ManualCourt::mouseDoubleClickEvent(QMouseEvent* event) {
  mousePressEvent(event); // two fast presses are two shots
}

void ManualCourt::mouseMoveEvent(QMouseEvent* event) {
  const auto shape = clickAt(event->position()) ? Qt::CrossCursor : Qt::ForbiddenCursor;
  if (cursor().shape() != shape)
    setCursor(shape);
  CourtView::mouseMoveEvent(event);
}

} // namespace hooptab
