#include "court/CourtPicture.h"

#include "appearance/Theme.h"

#include <QFontMetricsF>
#include <QPaintDevice>
#include <QPainterPath>

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace hooptab {

namespace {

using namespace court;

constexpr QColor kTintColour = kRim;
constexpr QColor kPlateColour(0xFF, 0xFF, 0xFF, 0xE8);
constexpr QColor kPlateTextColour(0x1D, 0x1B, 0x18);

QRectF courtRect() {
  return {0, 0, kLength, kWidth};
}
QRectF boxRect() {
  return {0, kBasketY - kBoxWidth / 2, kBoxLength, kBoxWidth};
}
QRectF aroundBasket(double radius) {
  return {kBasketX - radius, kBasketY - radius, radius * 2, radius * 2};
}
QPointF fromBasket(double distance, double degrees) {
  const double angle = degrees * std::numbers::pi / 180;
  return {kBasketX + distance * std::cos(angle), kBasketY + distance * std::sin(angle)};
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
  QPainterPath path(QPointF(kBasketX, kBasketY));
  path.lineTo(fromBasket(kLength * 2, -degrees));
  path.lineTo(fromBasket(kLength * 2, degrees));
  path.closeSubpath();
  return path;
}

// The areas of the chart's zones, by the same borders as court::chartZone.
const std::array<QPainterPath, kChartZoneCount>& zonePaths() {
  static const auto paths = [] {
    const QPainterPath two = insideThreePointLine();
    const QPainterPath three = pathOf(courtRect()).subtracted(two);
    const QPainterPath box = pathOf(boxRect());
    const QPainterPath left = pathOf({0, kBasketY, kLength, kWidth - kBasketY});
    const QPainterPath right = pathOf({0, 0, kLength, kBasketY});
    const QPainterPath leftCorner =
        pathOf({0, kWidth - kThreePointSideY, threePointCornerX(), kThreePointSideY});
    const QPainterPath rightCorner = pathOf({0, 0, threePointCornerX(), kThreePointSideY});
    QPainterPath underBasket;
    underBasket.addEllipse(aroundBasket(kNoChargeRadius));
    const QPainterPath middle = two.subtracted(box);
    const QPainterPath middleSides = middle.subtracted(wedge(kMidRangeCentreDegrees));
    const QPainterPath outside = three.subtracted(leftCorner).subtracted(rightCorner);
    const QPainterPath wings = outside.subtracted(wedge(kTopDegrees));

    std::array<QPainterPath, kChartZoneCount> zones;
    const auto zone = [&](ChartZone which) -> QPainterPath& {
      return zones[static_cast<std::size_t>(which)];
    };
    zone(ChartZone::UnderBasket) = underBasket;
    zone(ChartZone::Paint) = box.subtracted(underBasket);
    zone(ChartZone::MidRangeLeft) = middleSides.intersected(left);
    zone(ChartZone::MidRangeCentre) = middle.intersected(wedge(kMidRangeCentreDegrees));
    zone(ChartZone::MidRangeRight) = middleSides.intersected(right);
    zone(ChartZone::LeftCorner) = leftCorner;
    zone(ChartZone::LeftWing) = wings.intersected(left);
    zone(ChartZone::Top) = outside.intersected(wedge(kTopDegrees));
    zone(ChartZone::RightWing) = wings.intersected(right);
    zone(ChartZone::RightCorner) = rightCorner;
    return zones;
  }();
  return paths;
}

// The borders of zones where the court has no line of its own.
void drawZoneBorders(QPainter& painter) {
  painter.drawEllipse(aroundBasket(kNoChargeRadius));
  const double corner = threePointCornerX();
  painter.drawLine(QPointF(corner, 0), QPointF(corner, kThreePointSideY));
  painter.drawLine(QPointF(corner, kWidth - kThreePointSideY), QPointF(corner, kWidth));
  for (const double side : {-1.0, 1.0}) {
    const double toBoxEnd =
        (kBoxLength - kBasketX) / std::cos(kMidRangeCentreDegrees * std::numbers::pi / 180);
    painter.drawLine(fromBasket(toBoxEnd, side * kMidRangeCentreDegrees),
                     fromBasket(kThreePointRadius, side * kMidRangeCentreDegrees));
    painter.drawLine(fromBasket(kThreePointRadius, side * kTopDegrees),
                     fromBasket(kLength * 2, side * kTopDegrees));
  }
}

// Device units of one court unit.
double scaleOf(const QRectF& fitted, CourtPicture::Turn turn) {
  return fitted.width() / (turn == CourtPicture::Turn::BaselineLeft ? kLength : kWidth);
}

// Each parted from any ground by what lies around it, and from each other by shape. A missed one that lies
// over a made one is open in its middle.
void paintMark(QPainter& painter, const QPointF& centre, double radius, double pixel, const CourtMark& mark,
               bool isOverMade, const QColor& halo) {
  const Look& look = Theme::look();
  if (mark.isHighlighted) { // a ring that no other mark has
    painter.setBrush(look.surface);
    painter.setPen(QPen(look.ink, 1.5 * pixel));
    painter.drawEllipse(centre, radius * 1.75, radius * 1.75);
  }
  if (mark.isMade) {
    painter.setPen(QPen(kMadeRing, 1.6 * pixel));
    painter.setBrush(kMadeMark);
    painter.drawEllipse(centre, radius, radius);
    return;
  }
  const double arm = radius * (isOverMade ? 1.7 : 1.05);
  const double from = isOverMade ? radius * 0.95 : 0;
  for (const QPen& pen : {QPen(halo, 4 * pixel, Qt::SolidLine, Qt::RoundCap),
                          QPen(kMissedMark, 2 * pixel, Qt::SolidLine, Qt::RoundCap)}) {
    painter.setPen(pen);
    for (const QPointF& corner : {QPointF(1, 1), QPointF(1, -1), QPointF(-1, 1), QPointF(-1, -1)})
      painter.drawLine(centre + corner * from, centre + corner * arm);
  }
}

// Where the texts of the zones stand, each on a plate of its own inside the picture.
struct Plates {
  QFont upperFont, lowerFont;
  double upperHeight = 0;
  std::vector<QRectF> plates;

  [[nodiscard]] bool overlap() const {
    for (std::size_t i = 0; i < plates.size(); ++i) {
      for (std::size_t other = 0; other < i; ++other) {
        if (plates[i].intersects(plates[other]))
          return true;
      }
    }
    return false;
  }
};

Plates layOut(const QPainter& painter, double pixel, const QRectF& fitted, CourtPicture::Turn turn,
              const std::vector<CourtZoneText>& zones, bool withLower) {
  const double scale = scaleOf(fitted, turn);
  const QTransform transform = CourtPicture::fromCourt(fitted, turn);
  constexpr double kFontUnits = 5;
  Plates result;
  result.lowerFont = painter.font();
  result.lowerFont.setPixelSize(
      static_cast<int>(std::lround(std::clamp(scale * kFontUnits, 8 * pixel, 22 * pixel))));
  result.upperFont = result.lowerFont;
  result.upperFont.setBold(true);
  const QFontMetricsF upper(result.upperFont, painter.device());
  const QFontMetricsF lower(result.lowerFont, painter.device());
  result.upperHeight = upper.height();
  for (const CourtZoneText& zone : zones) {
    const bool hasLower = withLower && !zone.lower.isEmpty();
    const double margin = upper.height() * 0.2;
    const double width =
        std::max(upper.horizontalAdvance(zone.upper), hasLower ? lower.horizontalAdvance(zone.lower) : 0) +
        2 * margin;
    const double height = upper.height() + (hasLower ? lower.height() : 0);
    const Place label = chartZoneLabel(zone.zone);
    QRectF plate(0, 0, width, height);
    plate.moveCenter(transform.map(QPointF(label.x, label.y)));
    // A zone at the side line can be narrower than its texts.
    const QRectF room = fitted.adjusted(pixel, pixel, -pixel, -pixel);
    plate.moveLeft(std::clamp(plate.left(), room.left(), std::max(room.left(), room.right() - width)));
    plate.moveTop(std::clamp(plate.top(), room.top(), std::max(room.top(), room.bottom() - height)));
    result.plates.push_back(plate);
  }
  return result;
}

} // namespace

CourtColours wornCourt(const ChosenColours& chosen, CourtStrength strength) {
  const Look& look = Theme::look();
  const bool isDark = Theme::current() == ColourScheme::Dark;
  const double share = strength == CourtStrength::Calm ? look.calmCourt : look.setCourt;
  const auto worn = [&](std::uint32_t colour) {
    return mix(colourOf(colour), isDark ? look.desk : look.surface, share);
  };
  return {worn(chosen.twoPoints),
          worn(chosen.box),
          worn(chosen.threePoints),
          {},
          isDark ? look.desk : QColor(Qt::white)};
}

QRectF CourtPicture::fitted(const QRectF& area, Turn turn) {
  const QSizeF shape = turn == Turn::BaselineLeft ? QSizeF(kLength, kWidth) : QSizeF(kWidth, kLength);
  const QSizeF size = shape.scaled(area.size(), Qt::KeepAspectRatio);
  return {area.center() - QPointF(size.width() / 2, size.height() / 2), size};
}

CourtPicture::Turn CourtPicture::largerTurn(const QRectF& area) {
  return fitted(area, Turn::BaselineTop).width() * kLength > fitted(area, Turn::BaselineLeft).width() * kWidth
             ? Turn::BaselineTop
             : Turn::BaselineLeft;
}

QTransform CourtPicture::fromCourt(const QRectF& fitted, Turn turn) {
  const double scale = scaleOf(fitted, turn);
  if (turn == Turn::BaselineLeft)
    return {scale, 0, 0, scale, fitted.left(), fitted.top()};
  // A quarter turn clockwise: the baseline at the top, the shooter's left at the left.
  return {0, scale, -scale, 0, fitted.left() + kWidth * scale, fitted.top()};
}

// Device units of one pixel of a common screen: sizes that the eye asks for are the same on paper.
double CourtPicture::pixelOf(const QPainter& painter) const {
  constexpr double kScreenDpi = 96;
  if (m_pixel > 0)
    return m_pixel;
  return painter.device() == nullptr ? 1 : std::max(1.0, painter.device()->logicalDpiX() / kScreenDpi);
}

// The look's line where it is seen on all three zones, else that of the other look.
QColor CourtPicture::lineColour() const {
  if (m_colours.line.isValid())
    return m_colours.line;
  const auto seen = [this](const QColor& line) {
    double least = 21;
    for (const QColor& zone : {m_colours.twoPoints, m_colours.box, m_colours.threePoints})
      least = std::min(least, contrast(mix(line, zone, line.alphaF()), zone));
    return least;
  };
  const QColor dark = lookOf(ColourScheme::Light).courtLine;
  const QColor light = lookOf(ColourScheme::Dark).courtLine;
  return seen(dark) >= seen(light) ? dark : light;
}

void CourtPicture::paintCourt(QPainter& painter, const QRectF& fitted, Turn turn) const {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setClipRect(fitted);
  painter.setTransform(fromCourt(fitted, turn), true);
  painter.fillRect(courtRect(), m_colours.threePoints);
  painter.fillPath(insideThreePointLine(), m_colours.twoPoints);
  painter.fillRect(boxRect(), m_colours.box);
  paintLines(painter, scaleOf(fitted, turn));
  painter.restore();
}

// Expects the painter in court units.
void CourtPicture::paintLines(QPainter& painter, double scale) const {
  constexpr double kLineWidth = units(0.05);
  const double width = std::max(kLineWidth, 1 / scale);
  QPen pen(lineColour(), width);
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
  pen.setWidthF(width * 2.2);
  painter.setPen(pen);
  painter.drawLine(QPointF(kBackboardX, kBasketY - kBackboardWidth / 2),
                   QPointF(kBackboardX, kBasketY + kBackboardWidth / 2));
  constexpr double kSmallestRim = 2; // pixels; the true one would be a dot in a small picture
  painter.setPen(QPen(kRim, width * 1.4));
  painter.drawEllipse(aroundBasket(std::max(kRimRadius, kSmallestRim / scale)));
}

void CourtPicture::paintMarks(QPainter& painter, const QRectF& fitted, Turn turn,
                              const std::vector<CourtMark>& marks) const {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  const QTransform transform = fromCourt(fitted, turn);
  const double pixel = pixelOf(painter);
  constexpr double kRadiusUnits = 2;
  const double radius = std::clamp(kRadiusUnits * scaleOf(fitted, turn), 3.2 * pixel, 8 * pixel);
  // Made ones below the missed, highlighted ones above all others. A mark stays whole inside the picture.
  const double reach = radius + 2 * pixel;
  const auto inside = [](double value, double from, double to) {
    return std::clamp(value, from, std::max(from, to));
  };
  const auto centreOf = [&](const CourtMark& mark) {
    const Place place = atEdge(mark.place);
    const QPointF centre = transform.map(QPointF(place.x, place.y));
    return QPointF(inside(centre.x(), fitted.left() + reach, fitted.right() - reach),
                   inside(centre.y(), fitted.top() + reach, fitted.bottom() - reach));
  };
  std::vector<QPointF> made;
  for (const CourtMark& mark : marks) {
    if (mark.isMade)
      made.push_back(centreOf(mark));
  }
  for (const bool isHighlighted : {false, true}) {
    for (const bool isMade : {true, false}) {
      for (const CourtMark& mark : marks) {
        if (mark.isHighlighted != isHighlighted || mark.isMade != isMade)
          continue;
        const QPointF centre = centreOf(mark);
        const bool isOverMade = !isMade && std::ranges::any_of(made, [&](const QPointF& other) {
          return (other - centre).manhattanLength() < radius;
        });
        paintMark(painter, centre, radius, pixel, mark, isOverMade, m_colours.halo);
      }
    }
  }
  painter.restore();
}

void CourtPicture::paintZones(QPainter& painter, const QRectF& fitted, Turn turn,
                              const std::vector<CourtZoneText>& zones) const {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setClipRect(fitted);
  const double scale = scaleOf(fitted, turn);

  painter.save();
  painter.setTransform(fromCourt(fitted, turn), true);
  constexpr double kStrongestTint = 0.6;
  for (const CourtZoneText& zone : zones) {
    QColor tint = zone.tint.isValid() ? zone.tint : kTintColour;
    tint.setAlphaF(static_cast<float>(kStrongestTint * std::clamp(zone.strength, 0.0, 1.0)));
    painter.fillPath(zonePaths()[static_cast<std::size_t>(zone.zone)], tint);
  }
  QColor border = lineColour();
  border.setAlphaF(0.55F);
  painter.setPen(QPen(border, std::max(units(0.03), 0.8 / scale), Qt::DashLine));
  painter.setBrush(Qt::NoBrush);
  drawZoneBorders(painter);
  paintLines(painter, scale);
  painter.restore();

  bool showsLower = true;
  Plates layout = layOut(painter, pixelOf(painter), fitted, turn, zones, showsLower);
  if (layout.overlap()) {
    showsLower = false;
    layout = layOut(painter, pixelOf(painter), fitted, turn, zones, showsLower);
  }
  for (std::size_t i = 0; i < zones.size(); ++i) {
    const QRectF& plate = layout.plates[i];
    painter.setPen(Qt::NoPen);
    painter.setBrush(kPlateColour);
    painter.drawRoundedRect(plate, layout.upperHeight * 0.2, layout.upperHeight * 0.2);
    painter.setPen(kPlateTextColour);
    painter.setFont(layout.upperFont);
    painter.drawText(QRectF(plate.left(), plate.top(), plate.width(), layout.upperHeight), Qt::AlignCenter,
                     zones[i].upper);
    painter.setFont(layout.lowerFont);
    if (showsLower)
      painter.drawText(plate.adjusted(0, layout.upperHeight, 0, 0), Qt::AlignCenter, zones[i].lower);
  }
  painter.restore();
}

} // namespace hooptab
