// What makes one made-up player differ from another. The same in every game of a season, so that leaders and
// averages have something to tell.
#pragma once

#include "game/Roster.h"

namespace hooptab {

// Weights are relative to those of the team-mates; shares and percentages are of a thousand.
struct PlayerTraits {
  int quality = 0; // 0 to 400: how much the coach wants him on court
  int shooting = 0, rebounding = 0, passing = 0, stealing = 0, blocking = 0, losing = 0,
      fouling = 0;    // weights
  int threeShare = 0; // of his shots
  int layupShare = 0; // of his two-point shots; likewise the next two
  int dunkShare = 0;
  int paintShare = 0;
  int accuracy = 0;  // added to the percentage of every shot
  int freeThrow = 0; // percentage
};

[[nodiscard]] PlayerTraits traitsOf(int teamId, const RosterPlayer& player);

} // namespace hooptab
