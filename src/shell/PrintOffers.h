// Which reports the print preview offers for what is in front. Each keeps a copy of what it is about: the
// window it was asked from may close, and a game goes on.
#pragma once

#include "printing/frmprint.h"
#include "scorecard/ScorecardView.h"
#include "storage/GameFile.h"
#include "storage/GameState.h"
#include "teams/TeamStore.h"

#include <vector>

namespace hooptab {

// Settings and texts must outlive the offers.
[[nodiscard]] std::vector<ReportOffer> gameReports(const Game& game, const GameState& state,
                                                   const ScorecardView& choice, const Settings& settings,
                                                   const Texts& texts);
// Roster, prepared forms, blank forms.
[[nodiscard]] std::vector<ReportOffer>
teamReports(const TeamRecord& team, const std::vector<TeamPlayer>& players, const Texts& texts);
// Prepared forms, an offer for each team; none without teams.
[[nodiscard]] std::vector<ReportOffer> teamForms(TeamStore& teams, const Texts& texts);
[[nodiscard]] std::vector<ReportOffer> emptyForms(const Texts& texts);

} // namespace hooptab
