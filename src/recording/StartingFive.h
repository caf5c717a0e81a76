// The five with whom a team begins: whether the game still waits for them, and who is missing at START.
#pragma once

#include "game/Side.h"
#include "recording/LiveGame.h"
#include "settings/Texts.h"

#include <string>

namespace hooptab {

// Nobody of the team is on court, and nothing has happened yet but that players came and went.
[[nodiscard]] bool awaitsFive(const LiveGame& game, Side team);
// How many more of a team could stand on court: of five, or of all who may play.
[[nodiscard]] int missingOfFive(const LiveGame& game, Side team);
// Of both teams, for START: "LYNX: 2 of the five missing; HERON: nobody on court"; empty when all are there.
[[nodiscard]] std::string missingWords(const LiveGame& game, const Texts& texts);

} // namespace hooptab
