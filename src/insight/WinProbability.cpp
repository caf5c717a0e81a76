#include "insight/WinProbability.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <numbers>

namespace hooptab {

namespace {

constexpr double kSecondsOfSource = 48 * 60;
constexpr double kDriftOfSource = 4.87;
constexpr double kDeviationOfSource = 15.82;

double normalShareBelow(double deviations) {
  return 0.5 * std::erfc(-deviations / std::numbers::sqrt2);
}

} // namespace

double homeWinProbability(int margin, int secondsLeft) {
  if (secondsLeft <= 0)
    return margin == 0 ? 0.5 : margin > 0 ? 1.0 : 0.0;
  const double part = secondsLeft / kSecondsOfSource;
  return normalShareBelow((margin + kDriftOfSource * part) / (kDeviationOfSource * std::sqrt(part)));
}

std::vector<WinStep> winProbabilityOf(const MarginFlow& flow, const GameDetails& details) {
  std::vector<WinStep> steps;
  if (!flow.hasTime || flow.periods.empty())
    return steps;
  // The end of the last regular period: those that are still to come are as long as the rules say.
  constexpr std::int64_t kMost = kLastPeriod * 100 * 60;
  std::int64_t regular = 0;
  int known = 0;
  for (const MarginFlow::Period& period : flow.periods) {
    if (period.number > details.periods)
      break;
    regular = period.full;
    known = period.number;
  }
  regular += std::int64_t{std::max(details.periods - known, 0)} * details.minutesPerPeriod * 60;
  regular = std::min(regular, kMost);
  const auto leftAt = [&](int at) {
    if (at < regular)
      return static_cast<int>(regular) - at;
    const auto period = std::ranges::find_if(flow.periods, [&](const MarginFlow::Period& each) {
      return each.number > details.periods && each.full >= at;
    });
    return period == flow.periods.end() ? 0 : period->full - at;
  };
  steps.push_back({0, homeWinProbability(0, leftAt(0))});
  for (const MarginFlow::Step& step : flow.steps)
    steps.push_back({step.at, homeWinProbability(-step.margin(), leftAt(step.at))});
  const int end = flow.length();
  steps.push_back({end, homeWinProbability(-flow.marginAt(end), details.isFinished ? 0 : leftAt(end))});
  return steps;
}

} // namespace hooptab
