// A game with what its events come to, as one value: whoever is shown it keeps it as long as it is needed.
#pragma once

#include "game/GameFile.h"
#include "game/GameState.h"

namespace hooptab {

struct CountedGame {
  Game game;
  GameState state;
};

} // namespace hooptab
