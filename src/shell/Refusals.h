// What the user is told when a game file cannot be opened or written: the number of the text for each
// problem.
#pragma once

#include "game/GameFile.h"

namespace hooptab {

// 0 for no problem. "XXX" in the text stands for the file. Shown under text 1060 with an exclamation mark.
[[nodiscard]] int refusalText(GameFileProblem problem);

} // namespace hooptab
