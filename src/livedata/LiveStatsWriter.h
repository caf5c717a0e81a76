// Writes a game as data.json of a FIBA LiveStats webcast, finished or in progress. The file has no date,
// place, competition, round, set of rules and three-point line, no ids of the game, its teams and players;
// personal and technical fouls are one number of the box score, and all overtimes one score. A foul without a
// kind becomes a personal one, a time-out of a team without a kind a full one.
#pragma once

#include "foreign/ForeignGame.h"

#include <string>

namespace hooptab {

[[nodiscard]] std::string writeLiveStats(const ForeignGame& game);

} // namespace hooptab
