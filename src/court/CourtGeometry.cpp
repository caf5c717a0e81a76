#include "court/CourtGeometry.h"

#include "settings/Text.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace hooptab::court {

namespace {

constexpr double kHalfLine = 0.5; // a place this near to a line lies on it

double distanceFromBasket(Place place) {
  return std::hypot(place.x - kBasketX, place.y - kBasketY);
}

double beyondThreePointLine(Place place) {
  return court::beyondThreePointLine(place, kThreePointRadius, kBasketY - kThreePointSideY,
                                     threePointCornerX());
}

bool isBeyondThreePointLine(Place place) {
  return beyondThreePointLine(place) > 0;
}

bool isInBox(Place place) {
  return place.x <= kBoxLength && std::abs(place.y - kBasketY) <= kBoxWidth / 2;
}

bool isOnThreePointLine(Place place) {
  return std::abs(beyondThreePointLine(place)) <= kHalfLine;
}

bool isOnBoxOutline(Place place) {
  const double fromAxis = std::abs(place.y - kBasketY);
  const bool isOnSide = std::abs(fromAxis - kBoxWidth / 2) <= kHalfLine && place.x <= kBoxLength + kHalfLine;
  const bool isOnEnd = std::abs(place.x - kBoxLength) <= kHalfLine && fromAxis <= kBoxWidth / 2 + kHalfLine;
  return isOnSide || isOnEnd;
}

// Degrees off the axis through the basket, positive to the shooter's left as he faces it.
double degreesOffAxis(Place place) {
  return std::atan2(place.y - kBasketY, place.x - kBasketX) * 180 / std::numbers::pi;
}

} // namespace

Place atEdge(Place place) {
  const auto within = [](double value, double largest) {
    return value >= 0 ? std::min(value, largest) : 0.0;
  };
  return {within(place.x, kLength), within(place.y, kWidth)}; // what is no number is at 0
}

double threePointCornerX() {
  static const double x = threePointCornerX(kThreePointRadius, kBasketY - kThreePointSideY);
  return x;
}

double threePointCornerX(double radius, double fromAxis) {
  return kBasketX + std::sqrt(std::max(radius * radius - fromAxis * fromAxis, 0.0));
}

double beyondThreePointLine(Place place, double radius, double fromAxis, double cornerX) {
  return place.x <= cornerX ? std::abs(place.y - kBasketY) - fromAxis : distanceFromBasket(place) - radius;
}

ColourZone colourZone(Place place) {
  return isOnThreePointLine(place) || isOnBoxOutline(place) ? ColourZone::Line : zoneBesideLines(place);
}

ColourZone zoneBesideLines(Place place) {
  if (isBeyondThreePointLine(place))
    return ColourZone::ThreePoints;
  return isInBox(place) ? ColourZone::Box : ColourZone::TwoPoints;
}

ChartZone chartZone(Place anyPlace) {
  const Place place = atEdge(anyPlace);
  const double degrees = degreesOffAxis(place);
  const bool isLeft = place.y > kBasketY;
  if (isBeyondThreePointLine(place)) {
    if (place.x <= threePointCornerX())
      return isLeft ? ChartZone::LeftCorner : ChartZone::RightCorner;
    if (std::abs(degrees) <= kTopDegrees)
      return ChartZone::Top;
    return isLeft ? ChartZone::LeftWing : ChartZone::RightWing;
  }
  if (distanceFromBasket(place) <= kNoChargeRadius)
    return ChartZone::UnderBasket;
  if (isInBox(place))
    return ChartZone::Paint;
  if (std::abs(degrees) <= kMidRangeCentreDegrees)
    return ChartZone::MidRangeCentre;
  return isLeft ? ChartZone::MidRangeLeft : ChartZone::MidRangeRight;
}

bool isThreePointZone(ChartZone zone) {
  return zone >= ChartZone::LeftCorner;
}

Text chartZoneText(ChartZone zone) {
  constexpr std::array kTexts = {Text::ZoneUnderBasket, Text::ZonePaint,    Text::ZoneMidLeft,
                                 Text::ZoneMidCentre,   Text::ZoneMidRight, Text::ZoneLeftCorner,
                                 Text::ZoneLeftWing,    Text::ZoneTop,      Text::ZoneRightWing,
                                 Text::ZoneRightCorner};
  return kTexts[static_cast<std::size_t>(zone)];
}

Place chartZoneLabel(ChartZone zone) {
  constexpr std::array<Place, kChartZoneCount> kLabels = {{
      {kBasketX, kBasketY},
      {57, kBasketY},
      {34, 161},
      {91, kBasketY},
      {34, 39},
      {16, 193},
      {98, 177},
      {117.5, kBasketY},
      {98, 23},
      {16, 7},
  }};
  return kLabels[static_cast<std::size_t>(zone)];
}

} // namespace hooptab::court
