// A running game at one moment, as a value: what its events come to, and what no event says.
#pragma once

#include "game/CountedGame.h"
#include "recording/LiveGame.h"

namespace hooptab {

struct RunningGame {
  CountedGame counted;
  LiveGame::Phase phase = LiveGame::Phase::Stopped; // ReadOnly: somebody else records it
  int period = 1;                                   // the next one, once the one before has ended
  int clockSeconds = 0;                             // that remained; while it runs, count on from there
  OnCourt onCourt = {};
  bool isStopLost = false; // as LiveGame has it

  [[nodiscard]] static RunningGame of(const LiveGame& game) {
    return {{game.game(), game.state()}, game.phase(),   game.period(),
            game.clockSeconds(),         game.onCourt(), game.isStopLost()};
  }
};

} // namespace hooptab
