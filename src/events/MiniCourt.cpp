#include "events/MiniCourt.h"

#include "appearance/Theme.h"
#include "court/CourtColourChoice.h"
#include "game/CourtClick.h"
#include "settings/Settings.h"

#include <QMouseEvent>

#include <algorithm>
#include <chrono>
#include <cmath>

namespace hooptab {

namespace {

constexpr auto kTurn = CourtPicture::Turn::BaselineLeft;
constexpr std::chrono::milliseconds kFlash{180};
constexpr double kEdge = 2; // room for the marks of shots at the very edge, in pixels

} // namespace

MiniCourt::MiniCourt(const Settings& settings, QWidget* parent)
    : QWidget(parent), m_settings(settings), m_colours(wornCourt(CourtColourChoice::of(settings).colours)),
      m_zones(zoneMapOf(settings)) {
  setMouseTracking(true);
  m_flash.setSingleShot(true);
  m_flash.setInterval(kFlash);
  connect(&m_flash, &QTimer::timeout, this, qOverload<>(&MiniCourt::update));
}

void MiniCourt::applyColours() {
  m_zones = zoneMapOf(m_settings); // of the colours as they are, which may be worn alike
  const CourtColours colours = wornCourt(CourtColourChoice::of(m_settings).colours);
  if (colours == m_colours)
    return;
  m_colours = colours;
  m_court = {};
  update();
}

void MiniCourt::setPlaysRight(bool playsRight) {
  if (playsRight == m_playsRight)
    return;
  m_playsRight = playsRight;
  m_court = {};
  update();
}

void MiniCourt::setMarks(const std::vector<LivePanel::ShotMark>& shots) {
  if (shots == m_shots)
    return;
  m_shots = shots;
  update();
}

QSize MiniCourt::sizeHint() const {
  return {static_cast<int>(court::kLength), static_cast<int>(court::kWidth)};
}

QRectF MiniCourt::pictureRect() const {
  return CourtPicture::fitted(QRectF(rect()).adjusted(kEdge, kEdge, -kEdge, -kEdge), kTurn);
}

double MiniCourt::pixelsOfUnit() const {
  return pictureRect().height() / court::kWidth;
}

std::optional<court::Place> MiniCourt::placeAt(const QPointF& position) const {
  const QRectF picture = pictureRect();
  if (!picture.adjusted(-kEdge, -kEdge, kEdge, kEdge).contains(position))
    return std::nullopt;
  const QPointF place = CourtPicture::fromCourt(picture, kTurn).inverted().map(position);
  return court::Place{std::clamp(std::floor(place.x()), 0.0, court::kLength),
                      std::clamp(std::floor(place.y()), 0.0, court::kWidth)};
}

bool MiniCourt::countsAt(const std::optional<court::Place>& place) const {
  return place.has_value() && CourtClick::of(*place, m_playsRight, m_zones).has_value();
}

QPixmap MiniCourt::courtPixmap() const {
  QPixmap pixmap(size() * devicePixelRatio());
  pixmap.setDevicePixelRatio(devicePixelRatio());
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  if (m_playsRight) {
    painter.translate(width(), height());
    painter.rotate(180);
  }
  CourtPicture(m_colours).paintCourt(painter, pictureRect(), kTurn);
  return pixmap;
}

void MiniCourt::paintEvent(QPaintEvent*) {
  if (m_court.isNull() || m_court.size() != size() * devicePixelRatio())
    m_court = courtPixmap();
  QPainter painter(this);
  painter.drawPixmap(0, 0, m_court);
  std::vector<CourtMark> marks;
  marks.reserve(m_shots.size());
  for (const LivePanel::ShotMark& shot : m_shots)
    marks.push_back({m_playsRight ? court::reflected(shot.place) : shot.place, shot.isMade});
  const QRectF picture = pictureRect();
  CourtPicture(m_colours).paintMarks(painter, picture, kTurn, marks);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Theme::look().line);
  painter.setBrush(Qt::NoBrush);
  painter.drawRoundedRect(picture.adjusted(-0.5, -0.5, 0.5, 0.5), 2, 2);
  if (m_flash.isActive()) {
    constexpr double kFrame = 3;
    painter.setPen(QPen(Theme::missed(), kFrame, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter.drawRect(picture.adjusted(kFrame / 2, kFrame / 2, -kFrame / 2, -kFrame / 2));
  }
}

void MiniCourt::mousePressEvent(QMouseEvent* event) {
  if (event->buttons() != event->button()) // a second button while one is held
    return;
  const std::optional<court::Place> place = placeAt(event->position());
  if (!countsAt(place)) {
    m_flash.start();
    update();
    return;
  }
  emit pressed(QPointF(place->x, place->y), event->button() == Qt::LeftButton);
}

void MiniCourt::mouseDoubleClickEvent(QMouseEvent* event) {
  mousePressEvent(event); // two fast presses are two shots
}

void MiniCourt::mouseMoveEvent(QMouseEvent* event) {
  const auto shape = countsAt(placeAt(event->position())) ? Qt::CrossCursor : Qt::ForbiddenCursor;
  if (cursor().shape() != shape)
    setCursor(shape);
}

} // namespace hooptab
