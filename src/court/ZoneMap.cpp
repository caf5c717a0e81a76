#include "court/ZoneMap.h"

#include <algorithm>
#include <cmath>

namespace hooptab {

namespace {

// The places of the pixels through which the lines between zones run: one pixel for each row where a line is
// steep and one for each column where it is flat, so that it is one pixel wide and without a gap.
template <class Draw>
void drawLines(Draw draw) {
  using namespace court;
  const auto whole = [](double value) { return static_cast<int>(std::lround(value)); };

  const int boxEnd = whole(kBoxLength);
  const int boxTop = whole(kBasketY - kBoxWidth / 2);
  const int boxBottom = whole(kBasketY + kBoxWidth / 2);
  for (int x = 0; x <= boxEnd; ++x) {
    draw(x, boxTop);
    draw(x, boxBottom);
  }
  for (int y = boxTop; y <= boxBottom; ++y)
    draw(boxEnd, y);

  const int side = whole(kThreePointSideY);
  const double corner = threePointCornerX();
  for (int x = 0; x <= corner; ++x) {
    draw(x, side);
    draw(x, ZoneMap::kPixelsY - 1 - side);
  }
  for (int x = static_cast<int>(std::ceil(corner)); x < ZoneMap::kPixelsX; ++x) {
    const double alongX = x - kBasketX;
    if (std::abs(alongX) > kThreePointRadius)
      continue;
    const double alongY = std::sqrt(kThreePointRadius * kThreePointRadius - alongX * alongX);
    if (alongY < std::abs(alongX))
      continue;
    draw(x, whole(kBasketY - alongY));
    draw(x, whole(kBasketY + alongY));
  }
  for (int y = 0; y < ZoneMap::kPixelsY; ++y) {
    const double alongY = y - kBasketY;
    if (std::abs(alongY) > kThreePointRadius)
      continue;
    const double alongX = std::sqrt(kThreePointRadius * kThreePointRadius - alongY * alongY);
    if (alongX > std::abs(alongY))
      draw(whole(kBasketX + alongX), y);
  }
}

} // namespace

ZoneMap::ZoneMap(std::uint32_t twoPoints, std::uint32_t box, std::uint32_t threePoints)
    : m_twoPoints(twoPoints), m_box(box), m_threePoints(threePoints), m_lineColour(0),
      m_pixels(static_cast<std::size_t>(kPixelsX * kPixelsY)) {
  while (m_lineColour == twoPoints || m_lineColour == box || m_lineColour == threePoints)
    ++m_lineColour;

  const auto pixel = [this](int x, int y) -> std::uint32_t& {
    return m_pixels[static_cast<std::size_t>(y * kPixelsX + x)];
  };
  const auto zoneColour = [&](court::Place place) {
    switch (court::zoneBesideLines(place)) {
    case court::ColourZone::ThreePoints: return m_threePoints;
    case court::ColourZone::Box: return m_box;
    default: return m_twoPoints;
    }
  };
  for (int y = 0; y < kPixelsY; ++y) {
    for (int x = 0; x < kPixelsX; ++x)
      pixel(x, y) = zoneColour({static_cast<double>(x), static_cast<double>(y)});
  }
  drawLines([&](int x, int y) {
    if (x >= 0 && x < kPixelsX && y >= 0 && y < kPixelsY)
      pixel(x, y) = m_lineColour;
  });
}

std::uint32_t ZoneMap::colourAt(court::Place place) const {
  if (!(place.x >= 0 && place.x < kPixelsX && place.y >= 0 && place.y < kPixelsY))
    return m_lineColour;
  return m_pixels[static_cast<std::size_t>(static_cast<int>(place.y) * kPixelsX + static_cast<int>(place.x))];
}

ZoneMap::Result ZoneMap::shotAt(court::Place place) const {
  const std::uint32_t colour = colourAt(place);
  if (colour == m_lineColour)
    return Result::Ignored;
  return colour == m_twoPoints || colour == m_box ? Result::TwoPoints : Result::ThreePoints;
}

} // namespace hooptab
