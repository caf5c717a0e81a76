// What the start page says of a game, in words.
#pragma once

#include "settings/Texts.h"
#include "welcome/RecentGames.h"

#include <QString>

namespace hooptab {

[[nodiscard]] QString dayText(const RecentGame& game, const Texts& texts);    // as written when it is no date
[[nodiscard]] QString periodText(const RecentGame& game, const Texts& texts); // "Period 3", "OT1"
[[nodiscard]] QString stateText(const RecentGame& game, const Texts& texts);  // "Final, OT1", "not finished"
[[nodiscard]] QString scoreText(const RecentGame& game);                      // "86 – 82"
// All of it in one line, for screen readers.
[[nodiscard]] QString wholeText(const RecentGame& game, const Texts& texts);

} // namespace hooptab
