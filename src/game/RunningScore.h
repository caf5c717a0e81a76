// The score as it grew: what a list of events shows beside them, and a diagram draws.
#pragma once

#include "game/EventList.h"
#include "game/Side.h"

#include <vector>

namespace hooptab {

// Both teams' points after each event of the list; those after its first events may be known.
using Scores = std::vector<PerSide<int>>;
[[nodiscard]] Scores runningScore(const EventList& events, Scores known = {});

} // namespace hooptab
