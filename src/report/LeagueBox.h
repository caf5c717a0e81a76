// The box score as a league's sheet has it, as a table of a report. What its rows and columns hold is
// LeagueSheet's.
#pragma once

#include "game/CountedGame.h"
#include "game/Side.h"
#include "report/Report.h"
#include "settings/Texts.h"

namespace hooptab {

[[nodiscard]] ReportTable leagueTable(const CountedGame& counted, Side team, const Texts& texts);

} // namespace hooptab
