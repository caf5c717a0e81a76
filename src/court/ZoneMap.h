// The hidden picture whose pixel colour under a click decides the shot: 127 by 201 pixels, each zone in its
// own colour and the two lines that separate zones one pixel wide, in a colour that never equals a zone's.
#pragma once

#include "court/CourtGeometry.h"

#include <cstdint>
#include <vector>

namespace hooptab {

class ZoneMap {
 public:
  static constexpr int kPixelsX = 127;
  static constexpr int kPixelsY = 201;

  // Colours as settings keep them: red + 256 * green + 65536 * blue.
  ZoneMap(std::uint32_t twoPoints, std::uint32_t box, std::uint32_t threePoints);

  // The colour at the whole-number pixel of a place (truncated); the line colour outside the picture.
  [[nodiscard]] std::uint32_t colourAt(court::Place place) const;
  [[nodiscard]] std::uint32_t lineColour() const { return m_lineColour; }

  enum class Result : std::uint8_t { Ignored, TwoPoints, ThreePoints };
  // Two-point and box colours are compared first, so equal zone colours give two points.
  [[nodiscard]] Result shotAt(court::Place place) const;

 private:
  std::uint32_t m_twoPoints, m_box, m_threePoints, m_lineColour;
  std::vector<std::uint32_t> m_pixels;
};

} // namespace hooptab
