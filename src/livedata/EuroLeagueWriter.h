// Writes a game as the three files of the EuroLeague's live service. What they cannot hold: quarters of other
// than ten minutes and overtimes of other than five, hundredths of the clock, what kind of shot or turnover
// it was (an offensive foul but for), how many throws a foul awarded and which throw one is, jumpers, the
// arrow, captains and positions, the place of the game, its date where no shot has a time; of missed free
// throws the time, of missed shots the fast break; places farther out than the picture of the court. A player
// without an id gets one, a team without a code of its own too.
#pragma once

#include "foreign/ForeignGame.h"

#include <string>

namespace hooptab {

[[nodiscard]] std::string writeEuroLeaguePlayByPlay(const ForeignGame& game);
[[nodiscard]] std::string writeEuroLeagueBox(const ForeignGame& game);
[[nodiscard]] std::string writeEuroLeaguePoints(const ForeignGame& game);

} // namespace hooptab
