// What the user is told when a game file cannot be opened or written: the number of the text for each
// problem.
#pragma once

#include "game/GameFile.h"

namespace hooptab {

// None for no problem. "XXX" in it stands for the file. Shown under Text::ErrorTitle with an exclamation
// mark.
[[nodiscard]] Text refusalText(GameFileProblem problem);

} // namespace hooptab
