// The score as it grew: what a list of events shows beside them, and a diagram draws.
#pragma once

#include "game/GameEvent.h"

#include <array>
#include <vector>

namespace hooptab {

// Both teams' points after each event of the list.
[[nodiscard]] std::vector<std::array<int, 2>> runningScore(const EventList& events);

} // namespace hooptab
