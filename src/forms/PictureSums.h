// Two ways to look at a picture: the mean shade of any upright box in the same short time, and the shade
// between pixels. Whatever lies outside of the picture is left out of a mean; between pixels the edge goes
// on.
#pragma once

#include "forms/GrayPicture.h"

#include <algorithm>

namespace hooptab {

// The picture with so many pixels in each direction made one.
[[nodiscard]] GrayPicture reduced(const GrayPicture& picture, int factor);

// Turned clockwise by so many quarters, 0 to 3.
[[nodiscard]] GrayPicture turned(const GrayPicture& picture, int quarters);

class PictureSums {
 public:
  explicit PictureSums(const GrayPicture& picture);
  [[nodiscard]] int width() const { return m_width; }
  [[nodiscard]] int height() const { return m_height; }

  static constexpr double kNothing = -1;
  // Bounds are pixels, rounded; kNothing for a box outside of the picture.
  [[nodiscard]] double mean(double left, double top, double right, double bottom) const;

 private:
  [[nodiscard]] std::uint32_t sum(int x, int y) const {
    return m_sums[static_cast<std::size_t>(y) * (static_cast<std::size_t>(m_width) + 1) +
                  static_cast<std::size_t>(x)];
  }
  int m_width;
  int m_height;
  std::vector<std::uint32_t> m_sums; // may wrap; the difference of a box is right all the same
};

// The shade at a point, where the pixel in the corner covers 0 to 1.
[[nodiscard]] inline double shadeAt(const GrayPicture& picture, double x, double y) {
  const double left = std::clamp(x - 0.5, 0.0, static_cast<double>(picture.width - 1));
  const double top = std::clamp(y - 0.5, 0.0, static_cast<double>(picture.height - 1));
  const int column = static_cast<int>(left);
  const int row = static_cast<int>(top);
  const std::size_t width = static_cast<std::size_t>(picture.width);
  const std::size_t right = column + 1 < picture.width ? 1 : 0;
  const std::size_t below = row + 1 < picture.height ? width : 0;
  const std::uint8_t* pixel =
      picture.pixels.data() + static_cast<std::size_t>(row) * width + static_cast<std::size_t>(column);
  const double across = left - column;
  const double upper = pixel[0] + across * (pixel[right] - pixel[0]);
  const double lower = pixel[below] + across * (pixel[below + right] - pixel[below]);
  return upper + (top - row) * (lower - upper);
}

} // namespace hooptab
