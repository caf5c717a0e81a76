// Where a point of the paper lies in its picture: a projective mapping, which covers turning, shifting,
// stretching and a lens seen askew. Knows nothing of what stands on the paper.
#pragma once

#include <optional>
#include <span>

namespace hooptab {

struct PicturePoint {
  double x = 0, y = 0; // pixels, from the upper left corner
};

struct FormPoint {
  double x = 0, y = 0; // millimetres, as in FormLayout
};

class PageMapping {
 public:
  struct Pair {
    FormPoint form;
    PicturePoint picture;
  };
  // The best mapping for four pairs or more; nothing when they lie so that there is none.
  [[nodiscard]] static std::optional<PageMapping> through(std::span<const Pair> pairs);

  [[nodiscard]] PicturePoint at(double x, double y) const {
    const double depth = m[6] * x + m[7] * y + m[8];
    return {(m[0] * x + m[1] * y + m[2]) / depth, (m[3] * x + m[4] * y + m[5]) / depth};
  }
  // The same for a picture so many times as large.
  [[nodiscard]] PageMapping enlarged(double factor) const;

  double m[9] = {1, 0, 0, 0, 1, 0, 0, 0, 1};
};

} // namespace hooptab
