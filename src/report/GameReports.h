// The reports of one game: scorecard and play-by-play. Every number is taken from the classes that the
// scorecard shows; nothing is counted here.
#pragma once

#include "game/CountedGame.h"
#include "report/Report.h"
#include "scorecard/ScorecardView.h"
#include "settings/Settings.h"

namespace hooptab {

// Both teams' box scores by player or by line, points and fouls by period, leads, leaders of the game, score
// diagram, shot charts and notes. `choice` is what the scorecard shows: its view, its columns, and by its
// check marks the shots of the charts. The tables hold all players whatever is checked.
[[nodiscard]] Report scorecardReport(const std::shared_ptr<const CountedGame>& counted, ScorecardView choice,
                                     const Settings& settings, const Texts& texts);

// Every event that is not deleted, with the score where it changed.
[[nodiscard]] Report playByPlayReport(const CountedGame& counted, const Texts& texts);

} // namespace hooptab
