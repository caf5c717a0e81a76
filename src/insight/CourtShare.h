// What both teams did while certain players stood on court: of a player, a line, one line against another, a
// pair, a stretch, or a whole game. They add up, so what happened without a player is the whole less his
// share.
#pragma once

#include "game/Side.h"
#include "game/Statistics.h"

namespace hooptab {

struct CourtShare {
  int seconds = 0;
  PerSide<BoxCounters> counters = {};
  PerSide<int> possessions = {}; // that began, as insight/Possessions.h counts them

  [[nodiscard]] BoxNumbers numbers(Side team) const { return {counters[team], seconds}; }
  [[nodiscard]] int points(Side team) const { return numbers(team).points(); }
  [[nodiscard]] int plusMinus(Side team) const { return points(team) - points(otherSide(team)); }
  // Nothing happened, and no time passed.
  [[nodiscard]] bool isEmpty() const { return *this == CourtShare(); }

  CourtShare& operator+=(const CourtShare& added);
  CourtShare& operator-=(const CourtShare& taken);
  friend CourtShare operator+(CourtShare left, const CourtShare& right) { return left += right; }
  friend CourtShare operator-(CourtShare left, const CourtShare& right) { return left -= right; }
  friend bool operator==(const CourtShare&, const CourtShare&) = default;
};

} // namespace hooptab
