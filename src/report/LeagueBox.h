// The box score as a league's sheet has it: what counts for a team and none of its players has a row of its
// own, and is in the total. The table that a scorecard shows stays the sum of its players.
#pragma once

#include "game/CountedGame.h"
#include "report/Report.h"
#include "settings/Texts.h"

namespace hooptab {

// Field goals of two points are of every kind; fouls are personal and technical ones, those of coach and
// bench in the team's row.
[[nodiscard]] ReportTable leagueTable(const CountedGame& counted, int team, const Texts& texts);

} // namespace hooptab
