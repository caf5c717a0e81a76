// The box score of one team as a table of a report.
#pragma once

#include "game/Side.h"
#include "report/Report.h"
#include "scorecard/ScorecardView.h"
#include "settings/Settings.h"

namespace hooptab {

// In the columns and the order of the scorecard's table; `choice` says which columns are shown.
[[nodiscard]] ReportTable boxTable(const CountedGame& counted, Side team, const ScorecardView& choice,
                                   const Settings& settings, const Texts& texts);

} // namespace hooptab
