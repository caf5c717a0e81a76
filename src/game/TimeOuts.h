// How many time-outs a team has taken, and how many it has left, by the rules of the game.
#pragma once

#include "game/EventList.h"
#include "game/GameDetails.h"

#include <optional>

namespace hooptab {

struct TimeOuts {
  int taken = 0; // of those that count together with the ones that are left
  int left = 0;  // never below 0
  friend bool operator==(const TimeOuts&, const TimeOuts&) = default;
};

// In `period` with so much of it left, before the event at `before` (all events where none is given). Nothing
// in a game that names no rules.
[[nodiscard]] std::optional<TimeOuts> timeOutsOf(const GameDetails& details, const EventList& events,
                                                 int team, int period, int clockSeconds,
                                                 std::optional<std::size_t> before = std::nullopt);

} // namespace hooptab
