// Writes a game as <bbgame>, complete or in progress, for programs that take the XML of US colleges.
#pragma once

#include "foreign/ForeignGame.h"

#include <string>

namespace hooptab {

// The format has no place for coaches, captains and the round, wall clocks, fractions of a second, jump balls
// (which it only remarks), the arrow's turns (it has the last), the side of a lay-up, the two counts of one's
// own, the time-outs of a box, and minutes and seconds of it (whole minutes alone). What an event goes with
// is told by its place behind it.
[[nodiscard]] std::string writeBbGame(const ForeignGame& game);

} // namespace hooptab
