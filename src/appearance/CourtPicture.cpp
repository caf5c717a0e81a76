#include "appearance/CourtPicture.h"

#include <QFontMetricsF>
#include <QPainterPath>

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace hooptab {

namespace {

using namespace court;

// On paper and on every court colour alike; the shapes differ too, so that no colour is needed to read them.
constexpr QColor kMadeColour(0x0B, 0x72, 0x38);
constexpr QColor kMissedColour(0xC4, 0x16, 0x10);
constexpr QColor kTintColour(0xC2, 0x41, 0x0C);

QRectF courtRect() {
  return {0, 0, kLength, kWidth};
}
QRectF boxRect() {
  return {0, kBasketY - kBoxWidth / 2, kBoxLength, kBoxWidth};
}
QRectF aroundBasket(double radius) {
  return {kBasketX - radius, kBasketY - radius, radius * 2, radius * 2};
}

QPainterPath pathOf(const QRectF& rect) {
  QPainterPath path;
  path.addRect(rect);
  return path;
}

// All that is worth two points, bounded by the three-point line.
QPainterPath insideThreePointLine() {
  const double corner = threePointCornerX();
  const double degrees = std::acos((corner - kBasketX) / kThreePointRadius) * 180 / std::numbers::pi;
  QPainterPath path(QPointF(0, kThreePointSideY));
  path.lineTo(corner, kThreePointSideY);
  path.arcTo(aroundBasket(kThreePointRadius), degrees, -2 * degrees);
  path.lineTo(0, kWidth - kThreePointSideY);
  path.closeSubpath();
  return path;
}

// What lies within so many degrees of the axis through the basket.
QPainterPath wedge(double degrees) {
  const double reach = kLength * 2;
  const double across = reach * std::tan(degrees * std::numbers::pi / 180);
  QPainterPath path(QPointF(kBasketX, kBasketY));
  path.lineTo(kBasketX + reach, kBasketY - across);
  path.lineTo(kBasketX + reach, kBasketY + across);
  path.closeSubpath();
  return path;
}

// The outlines of the chart's zones, by the same borders as court::chartZone.
const std::array<QPainterPath, kChartZoneCount>& zonePaths() {
  static const auto paths = [] {
    const QPainterPath two = insideThreePointLine();
    const QPainterPath three = pathOf(courtRect()).subtracted(two);
    const QPainterPath box = pathOf(boxRect());
    const QPainterPath left = pathOf({0, kBasketY, kLength, kWidth - kBasketY});
    const QPainterPath right = pathOf({0, 0, kLength, kBasketY});
    const QPainterPath corners = pathOf({0, 0, threePointCornerX(), kWidth});
    QPainterPath underBasket;
    underBasket.addEllipse(aroundBasket(kNoChargeRadius));
    const QPainterPath middle = two.subtracted(box);
    const QPainterPath middleSides = middle.subtracted(wedge(30));
    const QPainterPath outside = three.subtracted(corners);
    const QPainterPath wings = outside.subtracted(wedge(25));

    std::array<QPainterPath, kChartZoneCount> zones;
    const auto zone = [&](ChartZone which) -> QPainterPath& {
      return zones[static_cast<std::size_t>(which)];
    };
    zone(ChartZone::UnderBasket) = underBasket;
    zone(ChartZone::Paint) = box.subtracted(underBasket);
    zone(ChartZone::MidRangeLeft) = middleSides.intersected(left);
    zone(ChartZone::MidRangeCentre) = middle.intersected(wedge(30));
    zone(ChartZone::MidRangeRight) = middleSides.intersected(right);
    zone(ChartZone::LeftCorner) = three.intersected(corners).intersected(left);
    zone(ChartZone::LeftWing) = wings.intersected(left);
    zone(ChartZone::Top) = outside.intersected(wedge(25));
    zone(ChartZone::RightWing) = wings.intersected(right);
    zone(ChartZone::RightCorner) = three.intersected(corners).intersected(right);
    return zones;
  }();
  return paths;
}

double scaleOf(const QRectF& fitted, CourtPicture::Turn turn) {
  return fitted.width() / (turn == CourtPicture::Turn::BaselineLeft ? kLength : kWidth);
}

} // namespace

QRectF CourtPicture::fitted(const QRectF& area, Turn turn) {
  const QSizeF shape = turn == Turn::BaselineLeft ? QSizeF(kLength, kWidth) : QSizeF(kWidth, kLength);
  const QSizeF size = shape.scaled(area.size(), Qt::KeepAspectRatio);
  return {area.center() - QPointF(size.width() / 2, size.height() / 2), size};
}

QTransform CourtPicture::fromCourt(const QRectF& fitted, Turn turn) {
  const double scale = scaleOf(fitted, turn);
  if (turn == Turn::BaselineLeft)
    return {scale, 0, 0, scale, fitted.left(), fitted.top()};
  // A quarter turn clockwise: the baseline at the top, the shooter's left at the left.
  return {0, scale, -scale, 0, fitted.left() + kWidth * scale, fitted.top()};
}

void CourtPicture::paintCourt(QPainter& painter, const QRectF& fitted, Turn turn) const {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setClipRect(fitted);
  painter.setTransform(fromCourt(fitted, turn), true);

  painter.fillRect(courtRect(), m_colours.threePoints);
  painter.fillPath(insideThreePointLine(), m_colours.twoPoints);
  painter.fillRect(boxRect(), m_colours.box);

  constexpr double kLineWidth = units(0.05);
  const double width = std::max(kLineWidth, 1 / scaleOf(fitted, turn));
  QPen pen(m_colours.line, width);
  pen.setCapStyle(Qt::FlatCap);
  pen.setJoinStyle(Qt::MiterJoin);
  painter.setPen(pen);
  painter.setBrush(Qt::NoBrush);
  // Baseline and side lines; the far side is open, where the picture ends and the court goes on.
  const double inset = width / 2;
  painter.drawPolyline(QPolygonF({QPointF(kLength, inset), QPointF(inset, inset),
                                  QPointF(inset, kWidth - inset), QPointF(kLength, kWidth - inset)}));
  painter.drawPath(insideThreePointLine());
  painter.drawRect(boxRect());
  constexpr int kSixteenths = 16; // Qt counts arcs in sixteenths of a degree
  const QRectF freeThrowCircle(kBoxLength - kFreeThrowCircleRadius, kBasketY - kFreeThrowCircleRadius,
                               kFreeThrowCircleRadius * 2, kFreeThrowCircleRadius * 2);
  painter.drawArc(freeThrowCircle, -90 * kSixteenths, 180 * kSixteenths);
  painter.drawArc(aroundBasket(kNoChargeRadius), -90 * kSixteenths, 180 * kSixteenths);
  for (const double side : {-kNoChargeRadius, kNoChargeRadius})
    painter.drawLine(QPointF(kBackboardX, kBasketY + side), QPointF(kBasketX, kBasketY + side));
  pen.setWidthF(width * 1.6);
  painter.setPen(pen);
  painter.drawLine(QPointF(kBackboardX, kBasketY - kBackboardWidth / 2),
                   QPointF(kBackboardX, kBasketY + kBackboardWidth / 2));
  painter.setPen(QPen(kTintColour, width * 1.4));
  painter.drawEllipse(aroundBasket(std::max(kRimRadius, 2.0)));
  painter.restore();
}

void CourtPicture::paintMarks(QPainter& painter, const QRectF& fitted, Turn turn,
                              const std::vector<CourtMark>& marks) const {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  const QTransform transform = fromCourt(fitted, turn);
  constexpr double kRadiusUnits = 2.0;
  const double usual = std::clamp(kRadiusUnits * scaleOf(fitted, turn), 2.5, 8.0);
  for (const CourtMark& mark : marks) {
    const Place place = atEdge(mark.place);
    const QPointF centre = transform.map(QPointF(place.x, place.y));
    const double radius = mark.isHighlighted ? usual * 1.6 : usual;
    const double line = std::max(radius * 0.5, 1.2);
    if (mark.isMade) {
      painter.setPen(QPen(Qt::white, line * 0.8));
      painter.setBrush(kMadeColour);
      painter.drawEllipse(centre, radius, radius);
      continue;
    }
    const QPointF down(radius, radius);
    const QPointF up(radius, -radius);
    for (const QPen& pen : {QPen(Qt::white, line * 2, Qt::SolidLine, Qt::RoundCap),
                            QPen(kMissedColour, line, Qt::SolidLine, Qt::RoundCap)}) {
      painter.setPen(pen);
      painter.drawLine(centre - down, centre + down);
      painter.drawLine(centre - up, centre + up);
    }
  }
  painter.restore();
}

void CourtPicture::paintZones(QPainter& painter, const QRectF& fitted, Turn turn,
                              const std::vector<CourtZoneText>& zones) const {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setClipRect(fitted);
  const QTransform transform = fromCourt(fitted, turn);
  const double scale = scaleOf(fitted, turn);
  for (const CourtZoneText& zone : zones) {
    QColor tint = kTintColour;
    tint.setAlphaF(static_cast<float>(0.55 * std::clamp(zone.strength, 0.0, 1.0)));
    painter.setBrush(tint);
    painter.setPen(QPen(QColor(0xFF, 0xFF, 0xFF, 0xB0), 1.2));
    painter.drawPath(transform.map(zonePaths()[static_cast<std::size_t>(zone.zone)]));
  }

  QFont font = painter.font();
  font.setPixelSize(std::clamp(static_cast<int>(std::lround(scale * 6)), 8, 20));
  QFont bold = font;
  bold.setBold(true);
  const QFontMetricsF lowerMetrics(font);
  const QFontMetricsF upperMetrics(bold);
  for (const CourtZoneText& zone : zones) {
    const Place label = chartZoneLabel(zone.zone);
    const double height = upperMetrics.height() + (zone.lower.isEmpty() ? 0 : lowerMetrics.height());
    const double width =
        std::max(upperMetrics.horizontalAdvance(zone.upper), lowerMetrics.horizontalAdvance(zone.lower)) + 8;
    QRectF plate(0, 0, width, height + 2);
    plate.moveCenter(transform.map(QPointF(label.x, label.y)));
    // A zone at the side line is narrower than its numbers: the plate stays inside the picture.
    plate.moveLeft(
        std::clamp(plate.left(), fitted.left() + 2, std::max(fitted.left() + 2, fitted.right() - width - 2)));
    plate.moveTop(std::clamp(plate.top(), fitted.top() + 2,
                             std::max(fitted.top() + 2, fitted.bottom() - plate.height() - 2)));
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0xFF, 0xFF, 0xFF, 0xE6));
    painter.drawRoundedRect(plate, 3, 3);
    painter.setPen(QColor(0x1D, 0x1B, 0x18));
    QRectF upper = plate;
    if (!zone.lower.isEmpty())
      upper.setHeight(upperMetrics.height() + 1);
    painter.setFont(bold);
    painter.drawText(upper, Qt::AlignCenter, zone.upper);
    painter.setFont(font);
    if (!zone.lower.isEmpty())
      painter.drawText(QRectF(plate.left(), upper.bottom(), plate.width(), plate.bottom() - upper.bottom()),
                       Qt::AlignCenter, zone.lower);
  }
  painter.restore();
}

} // namespace hooptab
