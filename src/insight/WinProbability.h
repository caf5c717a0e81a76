// How likely a margin is to hold: a random walk of the margin over the time that is left. Says what games
// alike have come to, not what this one will.
//
// After H. S. Stern, "A Brownian Motion Model for the Progress of Sports Scores", Journal of the American
// Statistical Association 89 (1994): the margin of the home team at the end of 48 minutes is normal, with
// mean 4.87 and standard deviation 15.82, and grows as a Brownian motion; of shorter games in proportion to
// time.
#pragma once

#include "insight/MarginFlow.h"

#include <vector>

namespace hooptab {

// For the home team: `margin` is its points less the visitors', `secondsLeft` until the end of the period
// that decides. Level with no time left is even. 0 to 1.
[[nodiscard]] double homeWinProbability(int margin, int secondsLeft);

struct WinStep {
  int at = 0; // as in MarginFlow
  double home = 0.5;
};
// From the beginning, at each score, and at the end. Overtimes are known only once they are played: until the
// last regular period is over the game ends with it. None in a game without time.
[[nodiscard]] std::vector<WinStep> winProbabilityOf(const MarginFlow& flow, const GameDetails& details);

} // namespace hooptab
