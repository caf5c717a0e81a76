// A stretch of a game as a game of its own: its events alone, between two stops that say who was on court.
// Whatever shows a game shows a stretch of it then, counted by the same rules.
#pragma once

#include "game/GameFile.h"

#include <utility>

namespace hooptab {

// From one clock to another, the events at the first left out and those at the last included; the first
// events of a period belong to what begins there.
struct Stretch {
  static constexpr int kPeriodBegin = 100 * 60; // above any clock
  int fromPeriod = 1;
  int fromClock = kPeriodBegin;
  int toPeriod = 1;
  int toClock = 0;

  [[nodiscard]] static Stretch ofPeriods(int first, int last) { return {first, kPeriodBegin, last, 0}; }
  [[nodiscard]] bool isWithinOnePeriod() const { return fromPeriod == toPeriod; }
  // Whether what happened at that clock comes behind the begin, and behind the end.
  [[nodiscard]] bool hasBegunBy(int period, int clock) const {
    return std::pair(period, -clock) > std::pair(fromPeriod, -fromClock);
  }
  [[nodiscard]] bool hasEndedBefore(int period, int clock) const {
    return std::pair(period, -clock) > std::pair(toPeriod, -toClock);
  }
  [[nodiscard]] bool holds(int period, int clock) const {
    return hasBegunBy(period, clock) && !hasEndedBefore(period, clock);
  }
  friend bool operator==(const Stretch&, const Stretch&) = default;
};

// Between two times of play since the game began (MarginFlow::Step::at); in a game without time, nothing is
// left out. Where a period ends the stretch begins in the next one and ends in the one before.
[[nodiscard]] Stretch stretchBetween(const Game& game, int from, int to);

// Details, rosters and accepted findings are those of the game. A stop at its begin and one at its end are
// added, so that time on court is counted; both have a key that no event of a game has.
[[nodiscard]] Game gameOfStretch(const Game& game, const Stretch& stretch);

} // namespace hooptab
