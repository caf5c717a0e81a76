// What a team did with certain of its players together on court, whoever else was: with one of them and
// without him, and every pair, three or more. Line-ups behind the hundredth of a game are in none of them.
#pragma once

#include "insight/GameInsight.h"

#include <vector>

namespace hooptab {

// Players as bits: bit n for player entry n.
[[nodiscard]] CourtShare togetherOnCourt(const GameInsight& insight, const GameState& state, Side team,
                                         unsigned players);

struct OnOff {
  CourtShare on;
  CourtShare off; // of the whole game, the rest
};
[[nodiscard]] OnOff onOffOf(const GameInsight& insight, Side team, int player);

struct Combination {
  unsigned players = 0; // as above
  CourtShare share;
};
// Every set of so many players who were on court together; the longest together first.
[[nodiscard]] std::vector<Combination> combinationsOf(const GameInsight& insight, const GameState& state,
                                                      Side team, int size);

} // namespace hooptab
