#include "forms/PageMapping.h"

#include "forms/LinearEquations.h"

#include <algorithm>
#include <cmath>

namespace hooptab {

std::optional<PageMapping> PageMapping::through(std::span<const Pair> pairs) {
  if (pairs.size() < 4)
    return std::nullopt;
  // Both sides are brought near 1, so that the squares of pixels and of ones can stand in one sum.
  double formSize = 1;
  double pictureSize = 1;
  for (const Pair& pair : pairs) {
    formSize = std::max({formSize, std::abs(pair.form.x), std::abs(pair.form.y)});
    pictureSize = std::max({pictureSize, std::abs(pair.picture.x), std::abs(pair.picture.y)});
  }
  LeastSquares<8> squares;
  for (const Pair& pair : pairs) {
    const double x = pair.form.x / formSize;
    const double y = pair.form.y / formSize;
    const double u = pair.picture.x / pictureSize;
    const double v = pair.picture.y / pictureSize;
    squares.add({x, y, 1, 0, 0, 0, -u * x, -u * y}, u);
    squares.add({0, 0, 0, x, y, 1, -v * x, -v * y}, v);
  }
  const auto found = squares.solution();
  if (!found)
    return std::nullopt;
  PageMapping result;
  for (std::size_t i = 0; i < 9; ++i) {
    double value = i < 8 ? (*found)[i] : 1;
    value *= i < 6 ? pictureSize : 1;
    result.m[i] = i % 3 == 2 ? value : value / formSize;
  }
  return result;
}

PageMapping PageMapping::enlarged(double factor) const {
  PageMapping result = *this;
  for (std::size_t i = 0; i < 6; ++i)
    result.m[i] *= factor;
  return result;
}

} // namespace hooptab
