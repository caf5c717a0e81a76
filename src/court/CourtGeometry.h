// The half court that every window and page draws: 126 by 200 units, origin at the top left, x from the
// attacked baseline of the left-hand side, y across the court. One unit is 7.5 cm. Lines are those of the
// FIBA court.
#pragma once

#include "settings/Text.h"

#include <cstdint>
#include <string>

namespace hooptab::court {

inline constexpr double kLength = 126.0; // x, 9.45 m from the baseline
inline constexpr double kWidth = 200.0;  // y, 15 m
inline constexpr double kMetresPerUnit = 0.075;

inline constexpr double units(double metres) {
  return metres / kMetresPerUnit;
}
inline constexpr double kBasketX = units(1.575);
inline constexpr double kBasketY = kWidth / 2;
inline constexpr double kThreePointRadius = units(6.75);
inline constexpr double kThreePointSideY = units(0.9); // straight parts, from either side line
inline constexpr double kBoxLength = units(5.8);
inline constexpr double kBoxWidth = units(4.9);
inline constexpr double kNoChargeRadius = units(1.25);
inline constexpr double kFreeThrowCircleRadius = units(1.8);
inline constexpr double kRimRadius = units(0.225);
inline constexpr double kBackboardX = units(1.2);
inline constexpr double kBackboardWidth = units(1.8);

struct Place {
  double x = 0;
  double y = 0;
  friend bool operator==(const Place&, const Place&) = default;
};
// The same spot seen from the other side: through the court's centre.
[[nodiscard]] constexpr Place reflected(Place place) {
  return {kLength - place.x, kWidth - place.y};
}
// Into the picture: what lies outside is drawn at the edge.
[[nodiscard]] Place atEdge(Place place);
// Where the three-point arc meets its straight parts, in x.
[[nodiscard]] double threePointCornerX();

// How far a place lies beyond a three-point line, negative inside it: of that radius around the basket, and
// of straight parts that far from the court's axis. All in units; `cornerX` is where arc and straight parts
// meet, in x.
[[nodiscard]] double beyondThreePointLine(Place place, double radius, double fromAxis, double cornerX);
[[nodiscard]] double threePointCornerX(double radius, double fromAxis);

// The zones whose colour decides between two and three points. Lines belong to none.
enum class ColourZone : std::uint8_t { TwoPoints, Box, ThreePoints, Line };
// By geometry, for any place: on a line where it is within half a unit of one.
[[nodiscard]] ColourZone colourZone(Place place);
// The zone that a place belongs to when lines have no width.
[[nodiscard]] ColourZone zoneBesideLines(Place place);

// The parts of the court by which a shot chart is summed.
enum class ChartZone : std::uint8_t {
  UnderBasket,  // inside the no-charge arc
  Paint,        // the rest of the box
  MidRangeLeft, // left and right as the shooter faces the basket
  MidRangeCentre,
  MidRangeRight,
  LeftCorner, // three points
  LeftWing,
  Top,
  RightWing,
  RightCorner,
};
inline constexpr int kChartZoneCount = 10;
// Half the angle, seen from the basket, of the zones in the middle: the first that of the box's end, so that
// its corners point at the borders.
inline constexpr double kMidRangeCentreDegrees = 30;
inline constexpr double kTopDegrees = 25;
// A place outside the picture counts where it is drawn, at the edge.
[[nodiscard]] ChartZone chartZone(Place place);
[[nodiscard]] bool isThreePointZone(ChartZone zone);
[[nodiscard]] Text chartZoneText(ChartZone zone);
[[nodiscard]] Place chartZoneLabel(ChartZone zone); // where a number for the zone is drawn

} // namespace hooptab::court
