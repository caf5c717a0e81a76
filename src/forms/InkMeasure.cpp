#include "forms/InkMeasure.h"

#include "forms/PictureSums.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>

namespace hooptab {

namespace {

// A cell and what is around it, sampled upright and in millimetres whatever the picture's turn and size. All
// distances are in these steps, counted from the cell's middle.
constexpr double kStep = 0.1;
constexpr int kReach = 22;  // to the borders of the neighbours
constexpr int kInside = 11; // still free of the border's grey when smoothed
constexpr int kCore = 8;    // ink farther out may have come from a neighbour
constexpr int kSmooth = 2;
constexpr int kGap = 20;                  // the middle of the paper between two cells
constexpr std::size_t kSmallestTick = 50; // samples

constexpr int kSide = 2 * kReach + 1;
constexpr int kSmoothSide = 2 * kSmooth + 1;
using Patch = std::array<double, static_cast<std::size_t>(kSide* kSide)>;

std::size_t index(int x, int y) {
  return static_cast<std::size_t>((y + kReach) * kSide + x + kReach);
}

Patch sampled(const GrayPicture& picture, const FormGrid& grid, const FormCell& cell) {
  const FormPoint middle{cell.rect.x + cell.rect.width / 2, cell.rect.y + cell.rect.height / 2};
  const PicturePoint at = grid.at(cell.player, middle);
  const PicturePoint right = grid.at(cell.player, {middle.x + 1, middle.y});
  const PicturePoint down = grid.at(cell.player, {middle.x, middle.y + 1});
  Patch result;
  for (int y = -kReach; y <= kReach; ++y) {
    for (int x = -kReach; x <= kReach; ++x)
      result[index(x, y)] = shadeAt(picture, at.x + kStep * (x * (right.x - at.x) + y * (down.x - at.x)),
                                    at.y + kStep * (x * (right.y - at.y) + y * (down.y - at.y)));
  }
  return result;
}

// The mean over half a millimetre: leaves a stroke of a pen, and little of noise, hairs and specks.
Patch smoothed(const Patch& patch) {
  const auto along = [](const Patch& from, int step) {
    Patch result = from;
    for (int line = -kReach; line <= kReach; ++line) {
      const std::size_t start = step == 1 ? index(-kReach, line) : index(line, -kReach);
      const std::size_t next = static_cast<std::size_t>(step);
      double sum = 0;
      for (std::size_t i = 0; i < kSide; ++i) {
        sum += from[start + i * next];
        if (i >= kSmoothSide)
          sum -= from[start + (i - kSmoothSide) * next];
        if (i + 1 >= kSmoothSide)
          result[start + (i - kSmooth) * next] = sum / kSmoothSide;
      }
    }
    return result;
  };
  return along(along(patch, 1), kSide);
}

double beyond(const Patch& dark) {
  double left = 0;
  double right = 0;
  double above = 0;
  double below = 0;
  for (int along = -kInside; along <= kInside; ++along) {
    left = std::max(left, dark[index(-kGap, along)]);
    right = std::max(right, dark[index(kGap, along)]);
    above = std::max(above, dark[index(along, -kGap)]);
    below = std::max(below, dark[index(along, kGap)]);
  }
  return std::max(std::min(left, right), std::min(above, below));
}

} // namespace

CellInk inkIn(const GrayPicture& picture, const FormGrid& grid, const FormCell& cell, double darkest) {
  Patch patch = sampled(picture, grid, cell);
  // Even in a cell that is filled in, and among others that are, the gaps are paper.
  constexpr double kPaperPart = 0.8;
  Patch sorted = smoothed(patch);
  const auto light = sorted.begin() + static_cast<std::ptrdiff_t>(kPaperPart * sorted.size());
  std::nth_element(sorted.begin(), light, sorted.end());
  const double paper = std::max(1.0, *light);
  const double range = paper * std::max(0.2, 1 - grid.black());
  for (double& each : patch)
    each = std::min(darkest, (paper - each) / range);
  patch = smoothed(patch);

  CellInk result;
  std::vector<double> weighted;
  double sum = 0;
  for (int y = -kInside; y <= kInside; ++y) {
    for (int x = -kInside; x <= kInside; ++x) {
      constexpr double kLessOutside = 0.2;
      const int outside = std::max(0, std::max(std::abs(x), std::abs(y)) - kCore);
      const double dark = std::clamp(patch[index(x, y)], 0.0, 1.0);
      weighted.push_back(dark * (1 - kLessOutside * outside));
      sum += dark;
    }
  }
  result.filled = sum / static_cast<double>(weighted.size());
  std::partial_sort(weighted.begin(), weighted.begin() + kSmallestTick, weighted.end(), std::greater<>());
  for (std::size_t i = 0; i < kSmallestTick; ++i)
    result.depth += weighted[i] / kSmallestTick;
  result.extent = kStep * kStep *
                  static_cast<double>(std::count_if(weighted.begin(), weighted.end(),
                                                    [&](double dark) { return dark > result.depth / 2; }));
  result.beyond = beyond(patch);
  return result;
}

} // namespace hooptab
