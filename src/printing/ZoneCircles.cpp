#include "printing/ZoneCircles.h"

#include "appearance/relabel.h"
#include "court/CourtPicture.h"
#include "printing/PageFormat.h"

#include <QFontMetricsF>

#include <algorithm>
#include <cmath>

namespace hooptab {

namespace {

constexpr QColor kAbove(0xC6, 0xDB, 0xF4);
constexpr QColor kBelow(0xF8, 0xDB, 0xB6);
constexpr QColor kBox(0xF2, 0xF2, 0xF0);
constexpr QColor kLines(0x59, 0x59, 0x59);
// In units of the court; two of the largest do not meet.
constexpr double kLeastRadius = 7.5;
constexpr double kMostRadius = 11.5;
constexpr double kPercentSize = 6;
constexpr double kFractionSize = 4.9;
constexpr double kAir = 1;
constexpr double kEdge = 6; // in units of the page

QPen edgeOf(double difference) {
  QPen pen(Qt::black, kEdge);
  if (difference < 0)
    pen.setDashPattern({2.6, 1.6});
  return pen;
}

QFont sized(const QFont& font, double size, bool isBold) {
  QFont result = font;
  result.setPixelSize(static_cast<int>(std::lround(size)));
  result.setBold(isBold);
  return result;
}

} // namespace

void paintZoneCircles(QPainter& painter, const ShotDrawing& drawing, const QRectF& area) {
  constexpr auto kTurn = CourtPicture::Turn::BaselineTop;
  const QRectF fitted = CourtPicture::fitted(area, kTurn);
  CourtPicture({Qt::white, kBox, Qt::white, kLines}, kUnitsPerInch / 96).paintCourt(painter, fitted, kTurn);
  const QTransform transform = CourtPicture::fromCourt(fitted, kTurn);
  const double scale = fitted.width() / court::kWidth;
  const QFont upper = sized(painter.font(), kPercentSize * scale, true);
  const QFont lower = sized(painter.font(), kFractionSize * scale, false);
  const QFontMetricsF upperMetrics(upper, painter.device());
  const QFontMetricsF lowerMetrics(lower, painter.device());
  for (std::size_t i = 0; i < drawing.zones.size(); ++i) {
    const ZoneWords& zone = drawing.zones[i];
    const double difference = drawing.differences.at(i);
    const double needed = std::max(upperMetrics.horizontalAdvance(toQt(zone.percent)),
                                   lowerMetrics.horizontalAdvance(toQt(zone.fraction))) /
                              2 +
                          kAir * scale;
    const double wanted = kLeastRadius + (kMostRadius - kLeastRadius) * std::sqrt(zone.strength);
    const double radius = std::max(wanted * scale, needed);
    const court::Place label = court::chartZoneLabel(zone.zone);
    QRectF circle(0, 0, 2 * radius, 2 * radius);
    circle.moveCenter(transform.map(QPointF(label.x, label.y)));
    // Whole, also where the zone is at the edge.
    circle.moveLeft(
        std::clamp(circle.left(), fitted.left() + kEdge, fitted.right() - kEdge - circle.width()));
    circle.moveTop(std::clamp(circle.top(), fitted.top() + kEdge, fitted.bottom() - kEdge - circle.height()));
    painter.setPen(edgeOf(difference));
    painter.setBrush(difference > 0 ? kAbove : difference < 0 ? kBelow : QColor(Qt::white));
    painter.drawEllipse(circle);
    painter.setPen(Qt::black);
    painter.setFont(upper);
    const double middle = circle.center().y();
    const auto draw = [&](const QString& text, const QFontMetricsF& metrics, double baseLine) {
      painter.drawText(QPointF(circle.center().x() - metrics.horizontalAdvance(text) / 2, baseLine), text);
    };
    draw(toQt(zone.percent), upperMetrics, middle);
    painter.setFont(lower);
    draw(toQt(zone.fraction), lowerMetrics, middle + lowerMetrics.ascent());
  }
}

} // namespace hooptab
