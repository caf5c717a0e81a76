// Statistics in words, for tool tips and for choosing one: the short headers say little to whoever sees them
// first, and eight of them read "PTS".
#pragma once

#include "game/Statistics.h"
#include "scorecard/LeagueSheet.h"
#include "settings/Settings.h"

#include <span>
#include <string>

namespace hooptab {

// What the user's own two are called; empty: as in the settings.
using StatisticLabels = std::span<const std::string, 2>;

[[nodiscard]] std::string statisticWords(const Statistic& statistic, StatisticLabels labels,
                                         const Settings& settings, const Texts& texts);
// Short enough for a title: not a whole formula.
[[nodiscard]] std::string statisticTitle(const Statistic& statistic, StatisticLabels labels,
                                         const Settings& settings, const Texts& texts);
// `column` is a creation index of a game's table.
[[nodiscard]] std::string columnWords(int column, StatisticLabels labels, const Settings& settings,
                                      const Texts& texts);
[[nodiscard]] std::string leagueColumnWords(const LeagueColumn& column, const Texts& texts);

} // namespace hooptab
