#include "insight/WinProbability.h"

#include <algorithm>
#include <cmath>
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
  const int regular = details.periods * details.minutesPerPeriod * 60;
  const auto leftAt = [&](int at) {
    if (at < regular)
      return regular - at;
    const auto period = std::ranges::find_if(flow.periods, [&](const MarginFlow::Period& each) {
      return each.number > details.periods && each.end >= at;
    });
    return period == flow.periods.end() ? 0 : period->end - at;
  };
  steps.push_back({0, homeWinProbability(0, leftAt(0))});
  for (const MarginFlow::Step& step : flow.steps)
    steps.push_back({step.at, homeWinProbability(-step.margin(), leftAt(step.at))});
  const int end = flow.length();
  steps.push_back({end, homeWinProbability(-flow.marginAt(end), leftAt(end))});
  return steps;
}

} // namespace hooptab
