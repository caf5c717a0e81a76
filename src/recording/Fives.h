// The players of a team who stand on court together, and those who have done so best: how long, and with what
// score meanwhile. Figures alone; lays out nothing.
#pragma once

#include "game/Side.h"
#include "recording/LiveGame.h"

#include <array>
#include <optional>
#include <string>

namespace hooptab {

struct FivePlay {
  unsigned players = 0;     // as in OnCourt
  std::string jerseys = {}; // "4 5 10 12 15"
  int seconds = 0;          // together, in the whole game
  int pointsFor = 0;
  int pointsAgainst = 0;
  [[nodiscard]] int plusMinus() const { return pointsFor - pointsAgainst; }
  friend bool operator==(const FivePlay&, const FivePlay&) = default;
};

struct Fives {
  static constexpr int kShortest = 60; // seconds that the best have played at least

  // Of both teams, as their lists say: a substitution of which a part was clicked is not in it. Nobody where
  // nobody is on court, and for a line behind the hundredth, which is not counted for itself.
  PerSide<FivePlay> current = {};
  // The five with the most points more than the other team meanwhile, of two equal ones who played longer.
  // None where no five has played long enough, so never in a game without time.
  PerSide<std::optional<FivePlay>> best = {};

  // Goes through all events: for once a change, not for every second.
  [[nodiscard]] static Fives of(const LiveGame& game);
};

} // namespace hooptab
