// A picture as shades of grey, whatever file or screen it came from.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace hooptab {

struct GrayPicture {
  int width = 0;
  int height = 0;
  std::vector<std::uint8_t> pixels; // row by row from the top, 0 black to 255 white

  [[nodiscard]] std::uint8_t at(int x, int y) const {
    return pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(width) +
                  static_cast<std::size_t>(x)];
  }
};

} // namespace hooptab
