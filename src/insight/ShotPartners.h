// Who had a part in a field goal beside the shooter: who assisted it, and who blocked it.
#pragma once

#include "game/EventList.h"

#include <cstddef>
#include <map>
#include <optional>

namespace hooptab {

// Of the shot at that place of the list; a missed one has none.
[[nodiscard]] std::optional<std::size_t> assistOf(const EventList& events, std::size_t shot);

// Blocks by the place of the shot that they blocked. A block is of the missed field goal of the other team at
// its clock, before or behind it with no other shot and no start of the clock between; else of the one before
// it. Where it says whose shot it was, it is of no other player's.
[[nodiscard]] std::map<std::size_t, std::size_t> blockedShots(const EventList& events);

} // namespace hooptab
