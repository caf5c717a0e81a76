// The reports of a season: games, tables of players and lines, leaders, the performance of one player or
// line, a player's page, and the scouting sheet of a team. All cells are those of the season's own tables;
// nothing is summed here.
#pragma once

#include "report/Report.h"
#include "season/Qualification.h"
#include "season/SeasonRating.h"
#include "settings/Settings.h"
#include "settings/Texts.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

namespace hooptab {

enum class SeasonReport : std::uint8_t {
  TeamSummary,
  TeamDetail,
  PlayerShots,
  LineShots,
  PlayerOther,
  LineOther,
  LeadersTotal,
  LeadersPerGame,
  LeadersPerMinute,
  Player,
  PlayerSheet,
  Line,
  Scout,
};

// How a report is asked for.
struct SeasonReportName {
  SeasonReport report;
  Text text;             // of the menu entry
  std::string_view word; // on the command line: "team-summary"
};
[[nodiscard]] std::span<const SeasonReportName> seasonReports();
// Of one player, of one line.
[[nodiscard]] constexpr bool isOfPlayer(SeasonReport report) {
  return report == SeasonReport::Player || report == SeasonReport::PlayerSheet;
}
[[nodiscard]] constexpr bool isOfPerson(SeasonReport report) {
  return isOfPlayer(report) || report == SeasonReport::Line;
}

// About one team, for whoever is to play against it.
[[nodiscard]] constexpr bool isOfTeam(SeasonReport report) {
  return report == SeasonReport::Scout;
}

struct SeasonReportChoice {
  std::optional<SeasonId> team; // whose results are shown
  std::optional<SeasonId>
      chosen; // the player or line of a performance report; one that is highlighted in the others
  Qualification minimum = {};          // who leads, and which averages are marked
  std::optional<SeasonId> reader = {}; // for whose coach a scouting sheet is
  SeasonRating ownRating = {};         // of the user's own, shown beside the built-in one
};

// A performance report without a chosen row that played is one of nobody: it holds no tables. Nor does a
// scouting sheet without a team.
[[nodiscard]] Report seasonReport(SeasonReport which, const SeasonStatistics& statistics,
                                  const SeasonReportChoice& choice, const Settings& settings,
                                  const Texts& texts);

} // namespace hooptab
