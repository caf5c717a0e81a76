// Says what a check has found, in the language in use.
#pragma once

#include "checks/Finding.h"
#include "game/GameFile.h"
#include "settings/Texts.h"

#include <string>

namespace hooptab {

// One sentence without full stop. `game` gives the names of teams and players.
[[nodiscard]] std::string wordsOf(const Finding& finding, const Game& game, const Texts& texts);
// "2 wrong, 1 doubtful"; "good" where nothing was found.
[[nodiscard]] std::string countsText(const FindingSummary& summary, const Texts& texts);

} // namespace hooptab
