// What two records of one game count differently, in words; nothing when they agree.
#pragma once

#include "game/GameFile.h"

#include <string>
#include <vector>

namespace hooptab {

// Counters and seconds of every player and of every line, with the points for and against while the line was
// on court; points and fouls by period; times and counts in lead.
[[nodiscard]] std::vector<std::string> differences(const Game& recorded, const Game& original);

} // namespace hooptab
