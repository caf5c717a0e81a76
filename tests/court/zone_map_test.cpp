#include "court/ZoneMap.h"

#include <gtest/gtest.h>
#include <limits>
#include <set>
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

struct Pixel {
  int x, y;
  auto operator<=>(const Pixel&) const = default;
};
Place placeOf(Pixel pixel) {
  return {static_cast<double>(pixel.x), static_cast<double>(pixel.y)};
}
std::vector<Pixel> allPixels() {
  std::vector<Pixel> pixels;
  for (int y = 0; y < ZoneMap::kPixelsY; ++y) {
    for (int x = 0; x < ZoneMap::kPixelsX; ++x)
      pixels.push_back({x, y});
  }
  return pixels;
}
std::set<Pixel> linePixels(const ZoneMap& map) {
  std::set<Pixel> pixels;
  for (const Pixel pixel : allPixels()) {
    if (map.colourAt(placeOf(pixel)) == map.lineColour())
      pixels.insert(pixel);
  }
  return pixels;
}

// Takes one pixel and all that hang together with it, over corners too.
std::set<Pixel> takeConnected(std::set<Pixel>& pixels) {
  std::set<Pixel> found;
  std::vector<Pixel> open = {*pixels.begin()};
  pixels.erase(pixels.begin());
  while (!open.empty()) {
    const Pixel pixel = open.back();
    open.pop_back();
    found.insert(pixel);
    for (int dy = -1; dy <= 1; ++dy) {
      for (int dx = -1; dx <= 1; ++dx) {
        if (const auto next = pixels.find({pixel.x + dx, pixel.y + dy}); next != pixels.end()) {
          open.push_back(*next);
          pixels.erase(next);
        }
      }
    }
  }
  return found;
}

TEST(ZoneMap, AgreesWithTheGeometryOffTheLines) {
  const ZoneMap map(kTwo, kBox, kThree);
  for (const Pixel pixel : allPixels()) {
    const ColourZone zone = court::colourZone(placeOf(pixel));
    const std::uint32_t colour = map.colourAt(placeOf(pixel));
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

TEST(ZoneMap, HasTwoUnbrokenLinesOnePixelWide) {
  const ZoneMap map(kTwo, kBox, kThree);
  const std::set<Pixel> all = linePixels(map);
  for (const Pixel pixel : all) {
    const bool isBlock = all.contains({pixel.x + 1, pixel.y}) && all.contains({pixel.x, pixel.y + 1}) &&
                         all.contains({pixel.x + 1, pixel.y + 1});
    ASSERT_FALSE(isBlock) << pixel.x << ", " << pixel.y;
  }
  std::set<Pixel> left = all;
  std::size_t lines = 0;
  while (!left.empty()) {
    const std::set<Pixel> line = takeConnected(left);
    ++lines;
    // Both lines leave the baseline on one side and come back on the other.
    EXPECT_EQ(line.begin()->x, 0);
    std::set<int> rows;
    int onBaseline = 0;
    for (const Pixel pixel : line) {
      rows.insert(pixel.y);
      onBaseline += pixel.x == 0 ? 1 : 0;
    }
    EXPECT_EQ(onBaseline, 2);
    EXPECT_EQ(static_cast<int>(rows.size()), *rows.rbegin() - *rows.begin() + 1);
  }
  EXPECT_EQ(lines, 2U);
}

// Nowhere does one zone touch another over an edge, so that a slip of one pixel is ignored or in the same
// zone.
TEST(ZoneMap, KeepsZonesApartByTheirLines) {
  const ZoneMap map(kTwo, kBox, kThree);
  for (const Pixel pixel : allPixels()) {
    const std::uint32_t colour = map.colourAt(placeOf(pixel));
    for (const Pixel next : {Pixel{pixel.x + 1, pixel.y}, Pixel{pixel.x, pixel.y + 1}}) {
      const std::uint32_t beside = map.colourAt(placeOf(next));
      ASSERT_TRUE(colour == beside || colour == map.lineColour() || beside == map.lineColour())
          << pixel.x << ", " << pixel.y;
    }
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
  for (const Pixel pixel : allPixels()) {
    const Place place = placeOf(pixel);
    const Place reflected = court::reflected(place);
    ASSERT_TRUE(reflected.x >= 0 && reflected.x < ZoneMap::kPixelsX) << pixel.x;
    ASSERT_TRUE(reflected.y >= 0 && reflected.y < ZoneMap::kPixelsY) << pixel.y;
    ASSERT_EQ(map.colourAt({place.x, reflected.y}), map.colourAt(place)) << pixel.x << ", " << pixel.y;
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
