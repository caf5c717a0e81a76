#include "forms/TickRule.h"

#include "forms/RowOrder.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace hooptab {

namespace {

constexpr double kSpeck = 0.5; // square millimetres; the smallest tick covers more
constexpr double kUnsure = 1.35;
constexpr double kEverywhereSeen = 0.27; // the strength of a pen's stroke on the worst scan

double strengthOf(const CellInk& ink) {
  return ink.depth * std::min(1.0, ink.extent / kSpeck);
}

double quantile(const std::vector<double>& sorted, double part) {
  return sorted.empty() ? 0 : sorted[static_cast<std::size_t>(part * static_cast<double>(sorted.size() - 1))];
}

// The most that cells without a mark have, by those of the page that have least.
double noiseIn(const std::vector<double>& sorted) {
  constexpr double kFew = 0.05;
  constexpr double kMore = 0.25;
  constexpr double kAbove = 6; // the farthest of a thousand lies so many times as far from `kMore` as `kFew`
  constexpr double kLeast = 0.03;
  const double more = quantile(sorted, kMore);
  return std::clamp(more + kAbove * (more - quantile(sorted, kFew)), kLeast, kEverywhereSeen);
}

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

TickRule::TickRule(const FormLayout& layout, std::vector<CellInk> inks, bool isPrepared, double border)
    : m_layout(layout), m_inks(std::move(inks)) {
  // The border of a cell is fainter than any pen, but a smudge may be as dark.
  constexpr double kStrokeToBorder = 1.9;
  for (std::size_t cell = 0; isPrepared && cell < m_inks.size(); ++cell) {
    const FormCell& digit = layout.cells()[cell];
    if (digit.kind == FormCell::Kind::JerseyDigit && isBlack(cell))
      m_hasPrintedNumber[static_cast<std::size_t>(digit.player)] = true;
  }
  std::vector<double> sorted;
  for (std::size_t cell = 0; cell < m_inks.size(); ++cell) {
    if (!isOfPrintedNumber(cell))
      sorted.push_back(strengthOf(m_inks[cell]));
  }
  std::sort(sorted.begin(), sorted.end());
  m_noise = noiseIn(sorted);
  m_clear = std::clamp(kStrokeToBorder * border, m_noise, kEverywhereSeen);

  const auto above = [&](double strength) {
    return std::upper_bound(sorted.begin(), sorted.end(), strength);
  };
  const auto adjust = [&](double faintest) {
    const auto first = above(faintest);
    // Nearly the strongest: one blot is no measure.
    const double strong = *(first + (sorted.end() - first - 1) * 9 / 10);
    m_typical = meanAbove(sorted, strong / 2);
    m_threshold = widestGap(sorted, 0.55 * m_typical, 0.45 * m_typical, 0.62 * m_typical);
  };
  const auto clear = sorted.end() - above(m_clear);
  if (clear > 0)
    adjust(m_clear);
  // Many marks that are none by the measure of a few: those few are dirt, or of another hand.
  constexpr std::ptrdiff_t kMany = 12;
  const double sure = clear > 0 ? m_threshold / kUnsure : m_clear;
  const auto faint = above(sure) - above(m_noise);
  m_isFaint = clear == 0 || (faint >= kMany && faint > 2 * clear);
  if (!m_isFaint)
    return;
  if (faint == 0) {
    m_typical = 2 * m_clear;
    m_threshold = m_clear;
    return;
  }
  adjust(m_noise);
  m_isUnsure = faint < kMany;
  m_isTooFaint = faint >= kMany && m_threshold < kUnsure * m_noise;
}

double TickRule::darkest() const {
  return std::min(1.0, 1.3 * m_typical);
}

bool TickRule::isBlack(std::size_t cell) const {
  constexpr double kWholly = 0.6; // of it, however pale the scan
  return m_inks[cell].filled > kWholly;
}

bool TickRule::isOfPrintedNumber(std::size_t cell) const {
  const FormCell& digit = m_layout.cells()[cell];
  return digit.kind == FormCell::Kind::JerseyDigit &&
         m_hasPrintedNumber[static_cast<std::size_t>(digit.player)];
}

bool TickRule::mayBeTicked(std::size_t cell) const {
  return !isOfPrintedNumber(cell) && strengthOf(m_inks[cell]) > m_typical / 4;
}

ReadCell TickRule::read(std::size_t cell) const {
  const CellInk& ink = m_inks[cell];
  const double found = strengthOf(ink);
  ReadCell result;
  result.ink = ink.filled;
  result.isTicked = found > m_threshold;
  if (isOfPrintedNumber(cell)) {
    // Print is black, and makes its neighbours grey; a pen that corrects it is to be looked at.
    result.isDoubtful = !isBlack(cell) && found > kEverywhereSeen;
    result.isTicked = isBlack(cell) || result.isDoubtful;
    return result;
  }
  result.isDoubtful =
      (found > m_threshold / kUnsure && found < m_threshold * kUnsure) || (result.isTicked && m_isUnsure);
  // Fainter than the others, but a stroke: perhaps with another pen.
  constexpr double kOtherPen = 0.28;
  if (!result.isTicked && found > std::max(m_isFaint ? m_noise : m_clear, kOtherPen * m_typical) &&
      ink.extent > kSpeck)
    result.isDoubtful = true;
  constexpr double kGoesOn = 0.6;  // part of the tick's own depth
  constexpr double kNoLine = 0.35; // strength that folds and stains hardly have
  if (result.isTicked && found < kNoLine && ink.beyond > kGoesOn * ink.depth)
    result.isDoubtful = true;
  return result;
}

void TickRule::doubtWhatIsOutOfOrder(std::vector<ReadCell>& cells) const {
  constexpr std::ptrdiff_t kSome = 6;
  std::vector<bool> isTicked;
  for (const ReadCell& cell : cells)
    isTicked.push_back(cell.isTicked);
  const std::vector<bool> isOdd = outOfOrder(m_layout, isTicked);
  // Who does not keep the rule at all left no holes by mistake; but among faint marks nothing is sure then.
  const auto odd = std::count(isOdd.begin(), isOdd.end(), true);
  const bool isKept = odd <= std::max(kSome, std::count(isTicked.begin(), isTicked.end(), true) / 5);
  for (std::size_t cell = 0; cell < cells.size(); ++cell) {
    const bool isInDoubt = isKept ? isOdd[cell] : m_isFaint && isTicked[cell];
    cells[cell].isDoubtful = cells[cell].isDoubtful || (isInDoubt && !isOfPrintedNumber(cell));
  }
}

std::vector<ReadCell> TickRule::read() const {
  std::vector<ReadCell> cells;
  for (std::size_t cell = 0; cell < m_inks.size(); ++cell)
    cells.push_back(read(cell));
  doubtWhatIsOutOfOrder(cells);
  return cells;
}

} // namespace hooptab
