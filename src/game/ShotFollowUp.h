// Which assist or rebound belongs to which shot: it is the next of these events behind the shot, with no
// other shot and no start of the clock between. Deleted events do not count.
#pragma once

#include "game/EventList.h"

#include <cstddef>
#include <optional>

namespace hooptab {

// Places in the list.
[[nodiscard]] std::optional<std::size_t> followUpOf(const EventList& events, std::size_t shot);
[[nodiscard]] std::optional<std::size_t> shotOf(const EventList& events, std::size_t followUp);
// The shot to which an assist or rebound at that place would belong.
[[nodiscard]] std::optional<std::size_t> shotBefore(const EventList& events, std::size_t event);

} // namespace hooptab
