// A game on one page: both box scores, the flow of the score, the shots of both teams and how they compare.
// Every number is taken from the tables that the windows show; nothing is counted here.
#pragma once

#include "game/CountedGame.h"
#include "report/Report.h"
#include "settings/Texts.h"

namespace hooptab {

[[nodiscard]] Report gameSheet(const CountedGame& counted, const Texts& texts);

} // namespace hooptab
