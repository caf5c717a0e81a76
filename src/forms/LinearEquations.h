// Solves a handful of linear equations by elimination with the largest pivot: what fitting a mapping to
// measured points needs.
#pragma once

#include <array>
#include <cmath>
#include <cstddef>
#include <optional>
#include <utility>

namespace hooptab {

// Least squares for unknown factors of known terms, one observation at a time.
template <std::size_t kUnknowns>
class LeastSquares {
 public:
  using Terms = std::array<double, kUnknowns>;

  void add(const Terms& terms, double value, double weight = 1) {
    for (std::size_t row = 0; row < kUnknowns; ++row) {
      for (std::size_t column = 0; column < kUnknowns; ++column)
        m_rows[row][column] += weight * terms[row] * terms[column];
      m_rows[row][kUnknowns] += weight * terms[row] * value;
    }
  }

  // Nothing when the observations leave an unknown open.
  [[nodiscard]] std::optional<Terms> solution() const {
    auto rows = m_rows;
    for (std::size_t pivot = 0; pivot < kUnknowns; ++pivot) {
      std::size_t best = pivot;
      for (std::size_t row = pivot + 1; row < kUnknowns; ++row) {
        if (std::abs(rows[row][pivot]) > std::abs(rows[best][pivot]))
          best = row;
      }
      constexpr double kNothing = 1e-12;
      if (!(std::abs(rows[best][pivot]) > kNothing))
        return std::nullopt;
      std::swap(rows[pivot], rows[best]);
      for (std::size_t row = 0; row < kUnknowns; ++row) {
        if (row == pivot)
          continue;
        const double factor = rows[row][pivot] / rows[pivot][pivot];
        for (std::size_t column = pivot; column <= kUnknowns; ++column)
          rows[row][column] -= factor * rows[pivot][column];
      }
    }
    Terms result;
    for (std::size_t row = 0; row < kUnknowns; ++row)
      result[row] = rows[row][kUnknowns] / rows[row][row];
    return result;
  }

 private:
  std::array<std::array<double, kUnknowns + 1>, kUnknowns> m_rows = {};
};

} // namespace hooptab
