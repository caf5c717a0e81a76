// Numbers that follow each other game by game, as pictures show them: a statistic of a player or line with
// its average, and the score margins of a team. Draws nothing.
#pragma once

#include "season/SeasonColumns.h"

#include <optional>
#include <span>
#include <vector>

namespace hooptab {

struct SeriesPoint {
  std::size_t game = 0;        // in the catalogue
  std::optional<double> value; // nothing for a percentage without attempts
};
struct GameSeries {
  std::vector<SeriesPoint> points;
  std::optional<double> average; // per game; of a percentage, that of all games together
};

// `column` is that of a statistic in the season's tables; times in seconds.
[[nodiscard]] GameSeries seriesOfStatistic(std::span<const GameResult> results, int column);
// Points ahead in each game of the team, below 0 for a defeat.
[[nodiscard]] GameSeries seriesOfMargins(const SeasonStatistics& statistics, SeasonId team);

} // namespace hooptab
