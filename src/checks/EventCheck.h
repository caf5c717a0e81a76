// What a game's events show: their numbers, periods, clocks, line-ups, and what each needs before it.
#pragma once

#include "checks/Finding.h"
#include "game/GameFile.h"

#include <vector>

namespace hooptab {

// Adds what it finds.
void checkEvents(const Game& game, std::vector<Finding>& findings);

} // namespace hooptab
