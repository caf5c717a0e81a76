// The reports of one team: its roster, and the paper forms on which totals are ticked during a game.
#pragma once

#include "report/Report.h"
#include "settings/Texts.h"
#include "teams/TeamStore.h"

namespace hooptab {

[[nodiscard]] Report rosterReport(const TeamRecord& team, const std::vector<TeamPlayer>& players,
                                  const Texts& texts);

// With number and name of each player whose number can take part in a game; four players a sheet.
[[nodiscard]] Report preparedForms(const TeamRecord& team, const std::vector<TeamPlayer>& players,
                                   const Texts& texts);
// The sheets of a team of fifteen, numbers and names to be filled in by hand.
[[nodiscard]] Report blankForms(const Texts& texts);

} // namespace hooptab
