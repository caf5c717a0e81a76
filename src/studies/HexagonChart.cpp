#include "studies/HexagonChart.h"

#include "appearance/Theme.h"
#include "appearance/relabel.h"
#include "court/CourtPicture.h"

#include <QPainterPath>
#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace hooptab {

namespace {

constexpr QColor kMore(0x1B, 0x56, 0xC0);
constexpr QColor kLess(0xB4, 0x56, 0x0A);
constexpr std::array kShares = {0.22, 0.5, 0.84}; // of the colour over its ground
constexpr std::array kSteps = {0.15, 0.4};        // points a shot from which on the next share holds
constexpr double kSmallest = 0.45;                // of the radius
constexpr int kCorners = 6;

double shareOf(double difference) {
  const auto step = std::ranges::upper_bound(kSteps, std::abs(difference));
  return kShares.at(static_cast<std::size_t>(step - kSteps.begin()));
}

QColor colourOf(const ShotHexagon& hexagon, const QColor& ground, const QColor& muted) {
  if (hexagon.attempted == 1)
    return mix(muted, ground, kShares[1]);
  const double difference = hexagon.difference();
  return mix(difference < 0 ? kLess : kMore, ground, shareOf(difference));
}

QPainterPath pathOf(const QPointF& middle, double radius) {
  QPolygonF corners;
  for (int i = 0; i < kCorners; ++i) {
    const double angle = i * 2 * std::numbers::pi / kCorners;
    corners << middle + QPointF(radius * std::cos(angle), radius * std::sin(angle));
  }
  QPainterPath path;
  path.addPolygon(corners);
  path.closeSubpath();
  return path;
}

} // namespace

HexagonChart::HexagonChart(const QString& name, const Texts& texts, QWidget* parent)
    : QWidget(parent), m_texts(texts) {
  setObjectName(name);
  setAccessibleNumber(*this, Text::SeasonShotChart);
  setToolTipNumber(*this, Text::HexagonLegend);
}

void HexagonChart::showShots(std::vector<ShotHexagon> hexagons) {
  m_hexagons = std::move(hexagons);
  m_reason = m_hexagons.empty() ? caption(m_texts, Text::NoShotsYet) : QString();
  update();
}

void HexagonChart::showReason(const QString& reason) {
  m_hexagons.clear();
  m_reason = reason;
  update();
}

void HexagonChart::paintPicture(QPainter& painter, const QRectF& area) const {
  paint(painter, area, Qt::white, lookOf(ColourScheme::Light).muted);
}

void HexagonChart::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setFont(Theme::font(Type::Small));
  const Look& look = Theme::look();
  if (!m_reason.isEmpty()) {
    painter.setPen(look.muted);
    painter.drawText(rect(), static_cast<int>(Qt::AlignCenter) | Qt::TextWordWrap, m_reason);
    return;
  }
  paint(painter, rect(), look.surface, look.muted);
}

void HexagonChart::paint(QPainter& painter, const QRectF& area, const QColor& ground,
                         const QColor& muted) const {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  const double line = QFontMetricsF(painter.font(), painter.device()).height() * 1.3;
  using Turn = CourtPicture::Turn;
  const QRectF court = CourtPicture::fitted(area.adjusted(0, line, 0, 0), Turn::BaselineTop);
  CourtPicture({ground, ground, ground}).paintCourt(painter, court, Turn::BaselineTop);
  paintLegend(painter, QRectF(area.left(), area.top(), area.width(), line), ground, muted);
  painter.setClipRect(court);
  const QTransform fromCourt = CourtPicture::fromCourt(court, Turn::BaselineTop);
  const double unit = court.width() / court::kWidth;
  int most = 1;
  for (const ShotHexagon& hexagon : m_hexagons)
    most = std::max(most, hexagon.attempted);
  for (const ShotHexagon& hexagon : m_hexagons) {
    const double size =
        kSmallest + (1 - kSmallest) * std::sqrt((hexagon.attempted - 1.0) / std::max(most - 1, 1));
    const QColor colour = colourOf(hexagon, ground, muted);
    painter.setPen(QPen(outlineOf(colour, ground), 0));
    painter.setBrush(colour);
    painter.drawPath(pathOf(fromCourt.map(QPointF(hexagon.middle.x, hexagon.middle.y)),
                            size * ShotHexagons::kRadius * unit));
  }
  painter.restore();
}

// Fewer points at the left, more at the right, and the steps between them.
void HexagonChart::paintLegend(QPainter& painter, const QRectF& area, const QColor& ground,
                               const QColor& muted) const {
  const QFontMetricsF metrics(painter.font(), painter.device());
  const QString fewer = caption(m_texts, Text::FewerPoints);
  const QString more = caption(m_texts, Text::MorePoints);
  const double step = metrics.height();
  const double gap = step / 2;
  const double width =
      metrics.horizontalAdvance(fewer) + metrics.horizontalAdvance(more) + 6 * step + 2 * gap;
  double left = area.right() - width;
  const auto write = [&](const QString& text) {
    const double room = metrics.horizontalAdvance(text) + 1;
    painter.setPen(muted);
    painter.drawText(QRectF(left, area.top(), room, area.height()), Qt::AlignVCenter, text);
    left += room;
  };
  write(fewer);
  left += gap;
  for (const auto& [colour, share] : {std::pair(kLess, kShares[2]),
                                      {kLess, kShares[1]},
                                      {kLess, kShares[0]},
                                      {kMore, kShares[0]},
                                      {kMore, kShares[1]},
                                      {kMore, kShares[2]}}) {
    painter.fillRect(QRectF(left, area.center().y() - step / 3, step, step * 2 / 3),
                     mix(colour, ground, share));
    left += step;
  }
  left += gap;
  write(more);
}

} // namespace hooptab
