// Which reports the print preview offers for what is in front. Each keeps a copy of what it is about: the
// window it was asked from may close, and a game goes on.
#pragma once

#include "forms/ScannedTotals.h"
#include "game/CountedGame.h"
#include "printing/frmprint.h"
#include "report/SeasonReports.h"
#include "scorecard/ScorecardView.h"
#include "season/Season.h"
#include "studies/frmSTATS.h"
#include "teams/TeamStore.h"

#include <memory>
#include <optional>
#include <vector>

namespace hooptab {

// Settings and texts must outlive the offers.
[[nodiscard]] std::vector<ReportOffer> gameOffers(std::shared_ptr<const CountedGame> game,
                                                  const ScorecardView& choice, const Settings& settings,
                                                  const Texts& texts);
// Roster, prepared forms, blank forms.
[[nodiscard]] std::vector<ReportOffer>
teamReports(const TeamRecord& team, const std::vector<TeamPlayer>& players, const Texts& texts);
// Prepared forms, an offer for each team; none without teams.
[[nodiscard]] std::vector<ReportOffer> teamForms(TeamStore& teams, const Texts& texts);
// The verification report of a scanned form.
[[nodiscard]] std::vector<ReportOffer> scanReports(const ScannedTotals& scanned, const GameDetails& game,
                                                   const std::string& source, const Settings& settings,
                                                   const Texts& texts);
// The reports of a season, that one first; those of one player, line or team only for the chosen one.
struct SeasonOffer {
  std::shared_ptr<const Season> season; // null: not generated yet
  std::optional<SeasonId> team;
  std::optional<SeasonId> scouted, reader;    // whose scouting sheet, and for whose coach
  std::shared_ptr<const SeasonPerson> person; // null: nobody is chosen
  bool highlightsPerson = false;
};
// What that report cannot be made without.
enum class MissingForReport { Nothing, Statistics, Person, Team };
[[nodiscard]] MissingForReport missingFor(SeasonReport report, const SeasonOffer& offer);
[[nodiscard]] std::vector<ReportOffer> seasonOffers(const SeasonOffer& offer, SeasonReport first,
                                                    const Settings& settings, const Texts& texts);
// The report of what a season's window shows; of a player or line where one is chosen.
[[nodiscard]] SeasonReport reportOfPage(frmSTATS::Page page, SeasonView leaders, const SeasonPerson* person);
// Whether a report is about players or lines, so that a chosen one can be told from the others there.
[[nodiscard]] bool canHighlight(SeasonReport report, const SeasonPerson& person);
[[nodiscard]] std::vector<ReportOffer> emptyForms(const Texts& texts);

} // namespace hooptab
