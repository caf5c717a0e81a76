#include "manual/TickRule.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace hooptab {

namespace {

constexpr double kSpeck = 0.5; // square millimetres; the smallest tick covers more

// Half-way between the mean of what lies above and of what lies below, found by repeating.
double meanAbove(const std::vector<double>& sorted, double threshold) {
  double above = threshold;
  for (int pass = 0; pass < 30; ++pass) {
    const auto first = std::upper_bound(sorted.begin(), sorted.end(), threshold);
    if (first == sorted.end())
      break;
    const auto mean = [](auto from, auto to) {
      return from == to ? 0 : std::accumulate(from, to, 0.0) / static_cast<double>(to - from);
    };
    above = mean(first, sorted.end());
    const double next = (above + mean(sorted.begin(), first)) / 2;
    if (std::abs(next - threshold) < 1e-6)
      break;
    threshold = next;
  }
  return above;
}

// The middle of the widest gap between strengths, rather near the expected threshold than far.
double widestGap(const std::vector<double>& sorted, double expected, double from, double to) {
  constexpr double kNear = 0.7;
  double best = expected;
  double bestValue = -1e9;
  for (std::size_t i = 1; i < sorted.size(); ++i) {
    const double low = std::max(sorted[i - 1], expected / 8);
    const double high = sorted[i];
    if (high <= low)
      continue;
    const double middle = std::clamp(std::sqrt(low * high), from, to);
    if (middle < low || middle > high)
      continue;
    const double value = std::log(high / low) - kNear * std::abs(std::log(middle / expected));
    if (value > bestValue) {
      bestValue = value;
      best = middle;
    }
  }
  return best;
}

} // namespace

double TickRule::strength(const CellInk& ink) {
  return ink.depth * std::min(1.0, ink.extent / kSpeck);
}

TickRule::TickRule(std::span<const CellInk> cells, double border) {
  // The border of a cell is fainter than any pen, but a smudge may be as dark.
  constexpr double kStrokeToBorder = 1.9;
  constexpr double kFaintestOfAll = 0.035;
  constexpr double kEverywhereSeen = 0.27;
  m_faintest = std::clamp(kStrokeToBorder * border, kFaintestOfAll, kEverywhereSeen);
  std::vector<double> strengths;
  for (const CellInk& ink : cells)
    strengths.push_back(strength(ink));
  std::sort(strengths.begin(), strengths.end());
  const auto first = std::upper_bound(strengths.begin(), strengths.end(), m_faintest);
  m_isSure = first != strengths.end();
  if (!m_isSure) {
    m_typical = 2 * m_faintest;
    m_threshold = m_faintest;
    return;
  }
  // Nearly the strongest: one blot is no measure.
  const double strong = *(first + (strengths.end() - first - 1) * 9 / 10);
  m_typical = meanAbove(strengths, strong / 2);
  m_threshold = widestGap(strengths, 0.55 * m_typical, 0.45 * m_typical, 0.62 * m_typical);
}

double TickRule::darkest() const {
  return std::min(1.0, 1.3 * m_typical);
}

ReadCell TickRule::read(const CellInk& ink) const {
  const double found = strength(ink);
  ReadCell result;
  result.ink = ink.filled;
  result.isTicked = found > m_threshold;
  const double unsure = m_isSure ? 1.35 : 1.3;
  result.isDoubtful = found > m_threshold / unsure && found < m_threshold * unsure;
  // Fainter than the others, but a stroke: perhaps with another pen.
  constexpr double kOtherPen = 0.28;
  if (!result.isTicked && found > std::max(m_faintest, kOtherPen * m_typical) && ink.extent > kSpeck)
    result.isDoubtful = true;
  return result;
}

} // namespace hooptab
