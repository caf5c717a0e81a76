#include "season/GameSeries.h"

#include "season/GameColumns.h"

namespace hooptab {

namespace {

std::optional<double> quotient(const StatisticValue& value) {
  if (value.denominator <= 0)
    return std::nullopt;
  return static_cast<double>(value.numerator) / static_cast<double>(value.denominator);
}

} // namespace

GameSeries seriesOfStatistic(std::span<const GameResult> results, int column) {
  GameSeries series;
  StatisticValue sum = {0, 0};
  for (const GameResult& result : results) {
    const StatisticValue value = seasonValue(rowOfResult(result), column, SeasonView::Totals);
    series.points.push_back({result.game, quotient(value)});
    sum.numerator += value.numerator;
    sum.denominator += value.denominator; // one for each game, or the attempts of a percentage
  }
  series.average = quotient(sum);
  return series;
}

GameSeries seriesOfMargins(const SeasonStatistics& statistics, SeasonId team) {
  GameSeries series;
  double sum = 0;
  for (const std::size_t index : statistics.games()) {
    const ListedGame& game = statistics.catalogue().games()[index];
    for (const Side side : kSides) {
      if (game.team[side] != team)
        continue;
      const int margin = game.points[side] - game.points[otherSide(side)];
      series.points.push_back({index, margin});
      sum += margin;
      break; // a team that plays itself plays one game
    }
  }
  if (!series.points.empty())
    series.average = sum / static_cast<double>(series.points.size());
  return series;
}

} // namespace hooptab
