#include "game/GameState.h"

#include <algorithm>

namespace hooptab {

bool Counters::hasAny() const {
  return std::ranges::any_of(counts, [](std::int16_t count) { return count != 0; });
}

int pointsOf(const Counters& counters) {
  int points = 0;
  for (const EventKind& kind : eventKinds()) {
    if (kind.isShot)
      points += kind.points * counters[kind.counter];
  }
  return points;
}

int GameState::points(Side team) const {
  int sum = 0;
  for (const PeriodEntry& entry : periods[team])
    sum += entry.points;
  return sum;
}

} // namespace hooptab
