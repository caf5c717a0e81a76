// The reports of one game: the game on one page, scorecard, league's box score, play-by-play. Every number is
// taken from the classes that the scorecard shows; nothing is counted here.
#pragma once

#include "game/CountedGame.h"
#include "report/Report.h"
#include "scorecard/ScorecardView.h"
#include "settings/Settings.h"

#include <memory>
#include <span>
#include <string_view>

namespace hooptab {

// With its title and the names that it and its files go by; what it holds is still to come.
[[nodiscard]] Report reportOf(const CountedGame& counted, Text title, const Texts& texts);

// Both teams' box scores by player or by line, points and fouls by period, leads, leaders of the game, score
// diagram, shot charts and notes. `choice` is what the scorecard shows: its view, its columns, and by its
// check marks the shots of the charts. The tables hold all players whatever is checked.
[[nodiscard]] Report scorecardReport(const std::shared_ptr<const CountedGame>& counted, ScorecardView choice,
                                     const Settings& settings, const Texts& texts);

// Both teams' box scores as a league's sheet has them, and the time-outs that they took.
[[nodiscard]] Report leagueReport(const CountedGame& counted, const Texts& texts);

// Every event that is not deleted, with the score where it changed.
[[nodiscard]] Report playByPlayReport(const CountedGame& counted, const Texts& texts);

// The reports of one game, in the order in which they are offered.
struct GameReport {
  std::string_view word; // on the command line
  Text name;             // in the preview; none: on the command line alone
  Report (*make)(const std::shared_ptr<const CountedGame>& counted, const ScorecardView& choice,
                 const Settings& settings, const Texts& texts);
};
[[nodiscard]] std::span<const GameReport> gameReports();

} // namespace hooptab
