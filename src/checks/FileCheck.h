// What only the text of a game file shows: lines and sections that no reader takes, and the number that the
// next event would get.
#pragma once

#include "checks/Finding.h"
#include "game/GameFile.h"
#include "storage/ProfileText.h"

#include <vector>

namespace hooptab {

// Adds what it finds. `game` was read from `text`.
void checkFile(const Game& game, const ProfileText& text, std::vector<Finding>& findings);

} // namespace hooptab
