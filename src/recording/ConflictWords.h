// Says in words what does not fit when a substitution is put in, changed or taken out later.
#pragma once

#include "game/GameFile.h"
#include "recording/OnCourt.h"
#include "settings/Texts.h"

#include <string>

namespace hooptab {

// "05:32 (Period 1)": period and clock of an event; empty for one that is not there.
[[nodiscard]] std::string placeWords(const EventPlace& place, const Game& game, const Texts& texts);
[[nodiscard]] std::string wordsOf(const CourtConflict& conflict, const Game& game, const Texts& texts);

} // namespace hooptab
