// The box score as a league's sheet has it: what counts for a team and none of its players has a row of its
// own, and is in the total. The table of every kind of shot, the sum of its players, is BoxScore's. Knows not
// how a window or a report shows it.
#pragma once

#include "game/Side.h"
#include "scorecard/BoxScore.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace hooptab {

// Field goals of two points are of every kind; fouls are personal and technical ones, those of coach and
// bench in the team's row.
struct LeagueColumn {
  std::string_view name; // unique, for files; the header where there is none in words
  Text header;
  Text words; // of the shots, where it is one of their three columns
  ValueKind kind;
  StatisticValue (*value)(const BoxRow& row);
  ShotKinds shots = 0; // none: it counts no shots
  ShotPart part = ShotPart::Made;
};

// From left to right, behind number and name.
[[nodiscard]] std::span<const LeagueColumn> leagueColumns();
[[nodiscard]] const LeagueColumn& leagueColumn(std::string_view name); // one of them
[[nodiscard]] std::string leagueHeader(const LeagueColumn& column, const Texts& texts);

// The players as in their table, the team's row, the total.
[[nodiscard]] std::vector<BoxRow> leagueRows(const CountedGame& counted, Side team, const Texts& texts);

// Empty where there is nothing to tell: a team's row has no time.
[[nodiscard]] std::string leagueCell(const BoxRow& row, const LeagueColumn& column);

} // namespace hooptab
