// The small tables of a player's and of a team's page: averages, on and off court, games, splits, and players
// together. Each is made of what the core has computed.
#pragma once

#include "season/Season.h"
#include "season/SnapshotModel.h"
#include "season/TeamStudy.h"
#include "settings/Settings.h"

#include <memory>
#include <vector>

namespace hooptab {

struct StudyTable {
  std::vector<TableColumn> columns; // as many whatever it shows
  TableRows rows;
};

// Of nobody (null) a table has its columns alone. Per game, the last five, per 40 minutes.
[[nodiscard]] StudyTable averagesOf(const SeasonPerson* person, const Settings& settings, const Texts& texts);
[[nodiscard]] StudyTable onOffTable(const SeasonPerson* person, const Texts& texts);

[[nodiscard]] StudyTable teamGamesTable(const SeasonStatistics* statistics, SeasonId team,
                                        const Texts& texts);
[[nodiscard]] StudyTable splitsTable(const SeasonStatistics* statistics, SeasonId team, const Texts& texts);
// `size` players together.
[[nodiscard]] StudyTable combinationsTable(const SeasonStatistics* statistics, SeasonId team, int size,
                                           const Texts& texts);

} // namespace hooptab
