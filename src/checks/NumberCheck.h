// Whether the numbers of a game's events are 1, 2, 3, …, each once in the whole game. Deleted events have
// theirs, too; an inserted one stands where it belongs, so that the order does not matter.
#pragma once

#include "checks/Finding.h"
#include "game/GameFile.h"

#include <vector>

namespace hooptab {

// Adds what it finds.
void checkNumbers(const Game& game, std::vector<Finding>& findings);

} // namespace hooptab
