#include "forms/PictureSums.h"

#include <cmath>
#include <utility>

namespace hooptab {

GrayPicture reduced(const GrayPicture& picture, int factor) {
  if (factor <= 1)
    return picture;
  GrayPicture result;
  result.width = std::max(1, picture.width / factor);
  result.height = std::max(1, picture.height / factor);
  const int across = std::min(factor, picture.width);
  const int down = std::min(factor, picture.height);
  const std::uint32_t count = static_cast<std::uint32_t>(across) * static_cast<std::uint32_t>(down);
  result.pixels.reserve(static_cast<std::size_t>(result.width) * static_cast<std::size_t>(result.height));
  std::vector<std::uint32_t> sums(static_cast<std::size_t>(result.width));
  for (int y = 0; y < result.height; ++y) {
    std::fill(sums.begin(), sums.end(), 0U);
    for (int row = y * factor; row < y * factor + down; ++row) {
      const std::uint8_t* pixel =
          picture.pixels.data() + static_cast<std::size_t>(row) * static_cast<std::size_t>(picture.width);
      for (std::uint32_t& sum : sums) {
        for (int i = 0; i < across; ++i)
          sum += *pixel++;
      }
    }
    for (const std::uint32_t sum : sums)
      result.pixels.push_back(static_cast<std::uint8_t>((sum + count / 2) / count));
  }
  return result;
}

GrayPicture turned(const GrayPicture& picture, int quarters) {
  GrayPicture result = picture;
  if (quarters == 2)
    std::ranges::reverse(result.pixels);
  if (quarters % 2 == 0)
    return result;
  std::swap(result.width, result.height);
  std::size_t place = 0;
  for (int y = 0; y < result.height; ++y) {
    for (int x = 0; x < result.width; ++x)
      result.pixels[place++] =
          quarters == 1 ? picture.at(y, result.width - 1 - x) : picture.at(result.height - 1 - y, x);
  }
  return result;
}

PictureSums::PictureSums(const GrayPicture& picture) : m_width(picture.width), m_height(picture.height) {
  const std::size_t stride = static_cast<std::size_t>(m_width) + 1;
  m_sums.assign(stride * (static_cast<std::size_t>(m_height) + 1), 0);
  const std::uint8_t* pixel = picture.pixels.data();
  for (std::size_t y = 1; y <= static_cast<std::size_t>(m_height); ++y) {
    std::uint32_t line = 0;
    for (std::size_t x = 1; x < stride; ++x) {
      line += *pixel++;
      m_sums[y * stride + x] = m_sums[(y - 1) * stride + x] + line;
    }
  }
}

double PictureSums::mean(double left, double top, double right, double bottom) const {
  const auto bound = [](double value, int end) {
    return static_cast<int>(std::clamp(std::floor(value + 0.5), 0.0, static_cast<double>(end)));
  };
  const int x0 = bound(left, m_width);
  const int x1 = bound(right, m_width);
  const int y0 = bound(top, m_height);
  const int y1 = bound(bottom, m_height);
  if (x1 <= x0 || y1 <= y0)
    return kNothing;
  const std::uint32_t total = sum(x1, y1) - sum(x0, y1) - sum(x1, y0) + sum(x0, y0);
  return static_cast<double>(total) / (static_cast<double>(x1 - x0) * static_cast<double>(y1 - y0));
}

} // namespace hooptab
