// Whether a game is as it should be: what cannot be so, and what is worth a look. One check for the live
// list, the scorecard, the season and the command line. Changes nothing and stops at nothing; deleted events
// do not count, but for their numbers, and the period in play lacks nothing. Games of totals have neither
// clock nor line-ups: of them only numbers, jerseys and players are looked at.
#pragma once

#include "checks/Finding.h"
#include "game/GameFile.h"
#include "game/Tally.h"
#include "storage/ProfileText.h"

#include <optional>
#include <vector>

namespace hooptab {

// Of a game as it is in memory: in the order of its events, those of no event first. Without the doubtful
// ones that the user has accepted.
[[nodiscard]] std::vector<Finding> checkGame(const Game& game);

// The same of a game and the text that it was read from, which tells more: lines and sections that no reader
// takes; and of the count, if there is one, that its tally could not hold.
[[nodiscard]] std::vector<Finding> checkGame(const Game& game, const ProfileText& text,
                                             const std::optional<CountOutOfRange>& outOfRange);

} // namespace hooptab
