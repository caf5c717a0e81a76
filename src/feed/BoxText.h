// A box score as text, for terminals and for who has no more than text.
#pragma once

#include "game/CountedGame.h"
#include "settings/Texts.h"

#include <string>

namespace hooptab {

// Points and fouls by period, time in lead, and a table of each team's players; shots of kinds that nobody
// took are left out.
[[nodiscard]] std::string boxText(const CountedGame& counted, const Texts& texts);

} // namespace hooptab
