#include "simulator/ShotPlaces.h"

#include <algorithm>

namespace hooptab {

namespace {

using court::ColourZone;

constexpr int kBasketX = static_cast<int>(court::kBasketX);
constexpr int kBasketY = static_cast<int>(court::kBasketY);

// A rectangle on the right hand of the shooter's half or across its middle, cut by distances from the basket.
struct Area {
  int leastX, mostX, leastY, mostY;
  int leastDistance, mostDistance;
  ColourZone zone;
  bool isMirrored;      // as often on the other side
  court::Place typical; // where drawing finds none
};

Area areaOf(ShotArea area) {
  switch (area) {
  case ShotArea::Paint: return {12, 74, 69, 131, 0, 70, ColourZone::Box, false, {36, 108}};
  case ShotArea::MidRange: return {6, 106, 16, 184, 22, 86, ColourZone::TwoPoints, false, {60, 50}};
  case ShotArea::Corner: return {3, 34, 3, 10, 88, 110, ColourZone::ThreePoints, true, {20, 6}};
  case ShotArea::Wing: return {44, 108, 4, 68, 92, 103, ColourZone::ThreePoints, true, {90, 32}};
  case ShotArea::Top: break;
  }
  return {104, 124, 69, 131, 92, 103, ColourZone::ThreePoints, false, {116, 100}};
}

} // namespace

court::Place shotPlace(ShotArea shotArea, Random& random) {
  constexpr int kTries = 200;
  const Area area = areaOf(shotArea);
  for (int i = 0; i < kTries; ++i) {
    int x = random.between(area.leastX, area.mostX);
    if (shotArea == ShotArea::Paint) // most of them close to the basket
      x = std::min(x, random.between(area.leastX, area.mostX));
    int y = random.between(area.leastY, area.mostY);
    if (area.isMirrored && random.chance(500))
      y = static_cast<int>(court::kWidth) - y;
    const int squared = (x - kBasketX) * (x - kBasketX) + (y - kBasketY) * (y - kBasketY);
    const court::Place place{static_cast<double>(x), static_cast<double>(y)};
    if (squared >= area.leastDistance * area.leastDistance &&
        squared <= area.mostDistance * area.mostDistance && court::colourZone(place) == area.zone)
      return place;
  }
  return area.typical;
}

} // namespace hooptab
