// The players of a team who stand on court together, and those who have done so best: how long, with what
// score meanwhile, and what that comes to for each hundred possessions. Figures alone; lays out nothing.
#pragma once

#include "game/Side.h"
#include "insight/GameInsight.h"
#include "recording/LiveMoment.h"

#include <optional>
#include <string>
#include <vector>

namespace hooptab {

struct FivePlay {
  unsigned players = 0;     // as in OnCourt
  std::string jerseys = {}; // "4 5 10 12 15"
  int seconds = 0;          // together, in the whole game
  int pointsFor = 0;
  int pointsAgainst = 0;
  std::optional<double> net = {}; // net rating; none of too few possessions to say anything
  [[nodiscard]] int plusMinus() const { return pointsFor - pointsAgainst; }
  friend bool operator==(const FivePlay&, const FivePlay&) = default;
};

struct Fives {
  static constexpr int kShortest = 60;         // seconds that those who are ranked have played at least
  static constexpr int kFewestPossessions = 8; // of each team, for a net rating

  // Of both teams, as their lists say: a substitution of which a part was clicked is not in it. Nobody where
  // nobody is on court, and for a line behind the hundredth, which is not counted for itself.
  PerSide<FivePlay> current = {};
  // Those of five players who have played long enough, the one on court included: by points more than the
  // other team meanwhile, and of two equal ones by time. Nobody in a game without time.
  PerSide<std::vector<FivePlay>> ranked = {};

  [[nodiscard]] const FivePlay* best(Side team) const {
    return ranked[team].empty() ? nullptr : &ranked[team].front();
  }

  // Goes through all events: for once a change, not for every second.
  [[nodiscard]] static Fives of(const LiveMoment& game) { return of(game, insightOf(game.game())); }
  // Of a game of which that is known.
  [[nodiscard]] static Fives of(const LiveMoment& game, const GameInsight& insight);
};

} // namespace hooptab
