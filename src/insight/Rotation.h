// Who was on court when: the stays of each player, with how the score went meanwhile. What a rotation chart
// draws beside the flow of the score.
#pragma once

#include "game/CountedGame.h"
#include "game/Side.h"

#include <vector>

namespace hooptab {

// A player's time on court without a break, within one period.
struct Stay {
  Side team = Side::Visitor;
  int player = 0; // entry
  int period = 0;
  int from = 0; // seconds of play since the game began
  int to = 0;
  int plusMinus = 0;
  friend bool operator==(const Stay&, const Stay&) = default;
};

// By team, player and time. None of a game of totals, or without time.
[[nodiscard]] std::vector<Stay> rotationOf(const Game& game);

} // namespace hooptab
