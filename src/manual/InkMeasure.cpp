#include "manual/InkMeasure.h"

#include "manual/PictureSums.h"

#include <algorithm>
#include <array>
#include <functional>

namespace hooptab {

namespace {

// A cell and what is around it, sampled upright and in millimetres whatever the picture's turn and size.
constexpr double kStep = 0.1;
constexpr int kReach = 22; // steps from the middle: to the border of the neighbours
constexpr int kSide = 2 * kReach + 1;
constexpr int kInside = 12;               // steps from the middle that surely are inside of the border
constexpr std::size_t kSmallestTick = 36; // samples
constexpr double kInkDark = 0.27;

using Patch = std::array<double, static_cast<std::size_t>(kSide* kSide)>;

std::size_t index(int x, int y) {
  return static_cast<std::size_t>((y + kReach) * kSide + x + kReach);
}

Patch sampled(const GrayPicture& picture, const FormGrid& grid, const FormCell& cell) {
  const FormPoint middle{cell.rect.x + cell.rect.width / 2, cell.rect.y + cell.rect.height / 2};
  const PicturePoint at = grid.at(cell.player, middle);
  const PicturePoint right = grid.at(cell.player, {middle.x + 1, middle.y});
  const PicturePoint down = grid.at(cell.player, {middle.x, middle.y + 1});
  Patch raw;
  for (int y = -kReach; y <= kReach; ++y) {
    for (int x = -kReach; x <= kReach; ++x)
      raw[index(x, y)] = shadeAt(picture, at.x + kStep * (x * (right.x - at.x) + y * (down.x - at.x)),
                                 at.y + kStep * (x * (right.y - at.y) + y * (down.y - at.y)));
  }
  // The mean of nine takes most of the noise away and leaves a stroke.
  Patch result = raw;
  for (int y = 1 - kReach; y < kReach; ++y) {
    for (int x = 1 - kReach; x < kReach; ++x) {
      double sum = 0;
      for (int dy = -1; dy <= 1; ++dy) {
        for (int dx = -1; dx <= 1; ++dx)
          sum += raw[index(x + dx, y + dy)];
      }
      result[index(x, y)] = sum / 9;
    }
  }
  return result;
}

} // namespace

CellInk inkIn(const GrayPicture& picture, const FormGrid& grid, const FormCell& cell) {
  const Patch patch = sampled(picture, grid, cell);
  Patch sorted = patch;
  const auto light = sorted.begin() + static_cast<std::ptrdiff_t>(sorted.size() * 8 / 10);
  std::nth_element(sorted.begin(), light, sorted.end());
  const double paper = std::max(1.0, *light);
  const double range = paper * std::max(0.2, 1 - grid.black());

  std::vector<double> darkness;
  for (int y = -kInside; y <= kInside; ++y) {
    for (int x = -kInside; x <= kInside; ++x)
      darkness.push_back(std::clamp((paper - patch[index(x, y)]) / range, 0.0, 1.0));
  }
  CellInk result;
  result.filled = static_cast<double>(std::count_if(darkness.begin(), darkness.end(),
                                                    [](double dark) { return dark > kInkDark; })) /
                  static_cast<double>(darkness.size());
  std::partial_sort(darkness.begin(), darkness.begin() + kSmallestTick, darkness.end(), std::greater<>());
  for (std::size_t i = 0; i < kSmallestTick; ++i)
    result.depth += darkness[i] / kSmallestTick;
  return result;
}

} // namespace hooptab
