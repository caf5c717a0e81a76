#include "court/ZoneMap.h"

#include <gtest/gtest.h>
#include <limits>
#include <vector>

namespace hooptab {
namespace {

using court::ColourZone;
using court::Place;
using Result = ZoneMap::Result;

// The colours of a first start.
constexpr std::uint32_t kTwo = 9092558;
constexpr std::uint32_t kBox = 10132122;
constexpr std::uint32_t kThree = 8454143;

std::vector<Place> allPixels() {
  std::vector<Place> pixels;
  for (int y = 0; y < ZoneMap::kPixelsY; ++y) {
    for (int x = 0; x < ZoneMap::kPixelsX; ++x)
      pixels.push_back({static_cast<double>(x), static_cast<double>(y)});
  }
  return pixels;
}

TEST(ZoneMap, AgreesWithTheGeometryOffTheLines) {
  const ZoneMap map(kTwo, kBox, kThree);
  for (const Place pixel : allPixels()) {
    const ColourZone zone = court::colourZone(pixel);
    const std::uint32_t colour = map.colourAt(pixel);
    if (colour == map.lineColour()) {
      // A line's pixel is one that the line runs through, nowhere a whole pixel off.
      bool isNear = false;
      for (const double dx : {-0.51, 0.0, 0.51}) {
        for (const double dy : {-0.51, 0.0, 0.51})
          isNear = isNear || court::colourZone({pixel.x + dx, pixel.y + dy}) == ColourZone::Line;
      }
      ASSERT_TRUE(isNear) << pixel.x << ", " << pixel.y;
    } else if (zone != ColourZone::Line) {
      const std::uint32_t expected =
          zone == ColourZone::Box ? kBox : (zone == ColourZone::TwoPoints ? kTwo : kThree);
      ASSERT_EQ(colour, expected) << pixel.x << ", " << pixel.y;
    }
  }
}

// Nowhere does one zone touch another over an edge: a slip of one pixel is ignored or in the same zone.
TEST(ZoneMap, KeepsZonesApartByUnbrokenLinesOnePixelWide) {
  const ZoneMap map(kTwo, kBox, kThree);
  const auto isLine = [&](Place place) {
    return place.x < ZoneMap::kPixelsX && place.y < ZoneMap::kPixelsY &&
           map.colourAt(place) == map.lineColour();
  };
  for (const Place pixel : allPixels()) {
    const std::uint32_t colour = map.colourAt(pixel);
    const Place right = {pixel.x + 1, pixel.y}, below = {pixel.x, pixel.y + 1};
    for (const Place next : {right, below}) {
      const std::uint32_t beside = map.colourAt(next);
      ASSERT_TRUE(colour == beside || colour == map.lineColour() || beside == map.lineColour())
          << pixel.x << ", " << pixel.y;
    }
    ASSERT_FALSE(isLine(pixel) && isLine(right) && isLine(below) && isLine({right.x, below.y}))
        << pixel.x << ", " << pixel.y;
  }
}

TEST(ZoneMap, DecidesPointsByColour) {
  const ZoneMap map(kTwo, kBox, kThree);
  EXPECT_EQ(map.shotAt({20, 100}), Result::TwoPoints);    // under the basket
  EXPECT_EQ(map.shotAt({90, 100}), Result::TwoPoints);    // behind the free-throw line
  EXPECT_EQ(map.shotAt({120, 100}), Result::ThreePoints); // straight on
  EXPECT_EQ(map.shotAt({10, 5}), Result::ThreePoints);    // corner
  EXPECT_EQ(map.shotAt({77.9, 100}), Result::Ignored);    // free-throw line, truncated to its pixel
  EXPECT_EQ(map.shotAt({10.9, 12.9}), Result::Ignored);   // three-point line
}

// The picture is symmetrical, so that a team on the right-hand side finds the same zones once reflected.
TEST(ZoneMap, KeepsReflectedPlacesInsideAndInTheSameZones) {
  const ZoneMap map(kTwo, kBox, kThree);
  for (const Place pixel : allPixels()) {
    const Place reflected = court::reflected(pixel);
    ASSERT_TRUE(reflected.x >= 0 && reflected.x < ZoneMap::kPixelsX) << pixel.x;
    ASSERT_TRUE(reflected.y >= 0 && reflected.y < ZoneMap::kPixelsY) << pixel.y;
    ASSERT_EQ(map.colourAt({pixel.x, reflected.y}), map.colourAt(pixel)) << pixel.x << ", " << pixel.y;
  }
  for (const Place corner : {Place{0, 0}, Place{126, 0}, Place{0, 200}, Place{126, 200}})
    EXPECT_EQ(map.shotAt(court::reflected(corner)), Result::ThreePoints);
}

TEST(ZoneMap, TakesEqualColoursAsTheFirstZoneThatHasThem) {
  const ZoneMap allEqual(7, 7, 7);
  EXPECT_EQ(allEqual.shotAt({120, 100}), Result::TwoPoints);
  EXPECT_EQ(allEqual.shotAt({77, 100}), Result::Ignored); // lines are still lines
  const ZoneMap boxLikeThree(1, 9, 9);
  EXPECT_EQ(boxLikeThree.shotAt({120, 100}), Result::TwoPoints);
  EXPECT_EQ(boxLikeThree.shotAt({20, 100}), Result::TwoPoints);
}

TEST(ZoneMap, NeverDrawsLinesInTheColourOfAZone) {
  constexpr std::uint32_t kColours[] = {0, 1, 2, 3, 4, 0xFFFFFF, 0x1000000, 0xFFFFFFFF};
  for (const std::uint32_t two : kColours) {
    for (const std::uint32_t box : kColours) {
      for (const std::uint32_t three : kColours) {
        const ZoneMap map(two, box, three);
        ASSERT_FALSE(map.lineColour() == two || map.lineColour() == box || map.lineColour() == three);
        ASSERT_EQ(map.lineColour(), ZoneMap(two, box, three).lineColour());
        ASSERT_EQ(map.shotAt({77, 100}), Result::Ignored);
      }
    }
  }
}

TEST(ZoneMap, IgnoresWhatIsOutsideThePicture) {
  const ZoneMap map(kTwo, kBox, kThree);
  const double kNoNumber = std::numeric_limits<double>::quiet_NaN();
  const double kEndless = std::numeric_limits<double>::infinity();
  for (const double wild : {-1.0, 201.0, 1e18, -1e18, kEndless, -kEndless, kNoNumber}) {
    EXPECT_EQ(map.shotAt({wild, 100}), Result::Ignored) << wild;
    EXPECT_EQ(map.shotAt({100, wild}), Result::Ignored) << wild;
  }
  EXPECT_EQ(map.shotAt({126.9, 200.9}), Result::ThreePoints);
  EXPECT_EQ(map.shotAt({127, 200}), Result::Ignored);
}

} // namespace
} // namespace hooptab
