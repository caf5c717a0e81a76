#include "court/CourtGeometry.h"

#include "settings/Texts.h"

#include <gtest/gtest.h>
#include <limits>
#include <set>

namespace hooptab::court {
namespace {

constexpr double kNoNumber = std::numeric_limits<double>::quiet_NaN();
constexpr double kEndless = std::numeric_limits<double>::infinity();

// A place as a coach would tape it out: metres from the baseline and from the axis, to the shooter's left.
Place taped(double fromBaseline, double toTheLeft) {
  return {units(fromBaseline), kBasketY + units(toTheLeft)};
}

TEST(CourtGeometry, AgreesWithThePlacesTapedOutOnAnyFibaCourt) {
  const struct {
    Place place;
    ColourZone zone;
    const char* what;
  } kPlaces[] = {
      {taped(1.575, 0), ColourZone::Box, "the basket"},
      {taped(5.70, 0), ColourZone::Box, "just inside the free-throw line"},
      {taped(5.80, 0), ColourZone::Line, "on the free-throw line"},
      {taped(5.90, 0), ColourZone::TwoPoints, "just behind the free-throw line"},
      {taped(3, 2.35), ColourZone::Box, "just inside the lane line"},
      {taped(3, 2.45), ColourZone::Line, "on the lane line"},
      {taped(3, -2.55), ColourZone::TwoPoints, "just outside the lane line"},
      {taped(1.575 + 6.65, 0), ColourZone::TwoPoints, "straight on, toes on the arc's inside"},
      {taped(1.575 + 6.75, 0), ColourZone::Line, "on the arc"},
      {taped(1.575 + 6.85, 0), ColourZone::ThreePoints, "straight on, behind the arc"},
      {taped(1, 6.5), ColourZone::TwoPoints, "a long two from the corner"},
      {taped(1, 6.6), ColourZone::Line, "on the straight part"},
      {taped(1, -6.7), ColourZone::ThreePoints, "a three from the corner"},
      {taped(2.99, 6.7), ColourZone::ThreePoints, "where the straight part ends"},
      {taped(0, 0), ColourZone::Box, "on the baseline under the basket"},
  };
  for (const auto& [place, zone, what] : kPlaces)
    EXPECT_EQ(colourZone(place), zone) << what;
  EXPECT_NEAR(threePointCornerX() * kMetresPerUnit, 2.99, 0.005);
}

TEST(CourtGeometry, NamesZonesAsTheShooterSeesThemFacingTheBasket) {
  const struct {
    Place place;
    ChartZone zone;
  } kPlaces[] = {
      {taped(1.575, 1.2), ChartZone::UnderBasket},
      {taped(1.575, 1.3), ChartZone::Paint},
      {taped(5.5, -2.3), ChartZone::Paint},
      {taped(1.575, 5), ChartZone::MidRangeLeft},
      {taped(1.575, -5), ChartZone::MidRangeRight},
      {taped(6.5, 0.5), ChartZone::MidRangeCentre},
      {taped(1, 7), ChartZone::LeftCorner},
      {taped(1, -7), ChartZone::RightCorner},
      {taped(6, 6), ChartZone::LeftWing},
      {taped(6, -6), ChartZone::RightWing},
      {taped(8.8, 1), ChartZone::Top},
  };
  for (const auto& [place, zone] : kPlaces)
    EXPECT_EQ(chartZone(place), zone) << place.x << ", " << place.y;
}

// Everywhere, a shot of three points is summed in a zone of three points, and the other way round.
TEST(CourtGeometry, KeepsTheZonesOfTheChartWithinThoseThatDecideThePoints) {
  std::set<ChartZone> seen;
  for (double x = 0; x <= kLength; x += 0.25) {
    for (double y = 0; y <= kWidth; y += 0.25) {
      const ChartZone zone = chartZone({x, y});
      seen.insert(zone);
      ASSERT_EQ(isThreePointZone(zone), zoneBesideLines({x, y}) == ColourZone::ThreePoints) << x << ", " << y;
      const bool isInBox = zone == ChartZone::Paint || zone == ChartZone::UnderBasket;
      ASSERT_EQ(isInBox, zoneBesideLines({x, y}) == ColourZone::Box) << x << ", " << y;
    }
  }
  EXPECT_EQ(seen.size(), static_cast<std::size_t>(kChartZoneCount));
}

TEST(CourtGeometry, MirrorsLeftAndRightAndReflectsThroughTheCentre) {
  const auto mirrored = [](ChartZone zone) {
    switch (zone) {
    case ChartZone::MidRangeLeft: return ChartZone::MidRangeRight;
    case ChartZone::LeftCorner: return ChartZone::RightCorner;
    case ChartZone::LeftWing: return ChartZone::RightWing;
    default: return zone;
    }
  };
  for (double x = 0; x <= kLength; ++x) {
    for (double y = kWidth / 2 + 0.5; y <= kWidth; ++y) {
      ASSERT_EQ(chartZone({x, kWidth - y}), mirrored(chartZone({x, y}))) << x << ", " << y;
      ASSERT_EQ(colourZone({x, kWidth - y}), colourZone({x, y})) << x << ", " << y;
    }
  }
  EXPECT_EQ(reflected({0, 0}), (Place{kLength, kWidth}));
  EXPECT_EQ(reflected(reflected({33, 7})), (Place{33, 7}));
}

TEST(CourtGeometry, GivesEveryZoneANameAndALabelInsideIt) {
  const Texts texts;
  const auto nameOf = [&](ChartZone zone) { return texts.text(chartZoneText(zone)); };
  std::set<std::string_view> names;
  for (int index = 0; index < kChartZoneCount; ++index) {
    const auto zone = static_cast<ChartZone>(index);
    EXPECT_TRUE(names.insert(nameOf(zone)).second);
    EXPECT_EQ(chartZone(chartZoneLabel(zone)), zone) << nameOf(zone);
  }
  EXPECT_EQ(nameOf(ChartZone::LeftCorner), "Left corner");
  EXPECT_EQ(nameOf(ChartZone::Top), "Top");
  EXPECT_EQ(nameOf(ChartZone::MidRangeCentre), "Mid-range center");
  EXPECT_EQ(nameOf(ChartZone::UnderBasket), "Under the basket");
}

TEST(CourtGeometry, BringsWhatIsNoPlaceOfTheCourtToItsEdge) {
  EXPECT_EQ(atEdge({-3, 250}), (Place{0, kWidth}));
  EXPECT_EQ(atEdge({kLength, 12.5}), (Place{kLength, 12.5}));
  EXPECT_EQ(atEdge({kNoNumber, kNoNumber}), (Place{0, 0}));
  EXPECT_EQ(atEdge({kEndless, -kEndless}), (Place{kLength, 0}));
  for (const double wild : {kNoNumber, kEndless, -kEndless, 1e300, -1e300}) {
    for (const Place place : {Place{wild, 100}, Place{60, wild}, Place{wild, wild}}) {
      EXPECT_EQ(chartZone(place), chartZone(atEdge(place)));
      EXPECT_LE(colourZone(place), ColourZone::Line);
    }
  }
}

} // namespace
} // namespace hooptab::court
