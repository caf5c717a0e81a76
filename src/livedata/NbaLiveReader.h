// A game from NBA live data: a play-by-play, and the box score of the same game where there is one.
#pragma once

#include "foreign/ForeignGame.h"
#include "foreign/SourcePart.h"
#include "livedata/JsonDocument.h"

#include <optional>

namespace hooptab {

[[nodiscard]] std::optional<SourcePart> recogniseNbaLive(const Json& file);

// Without a box score (null) the teams and players are those that the rows name, without jerseys. Throws
// UnreadableGame where no game can be made of it.
[[nodiscard]] ForeignGame readNbaLive(const Json& playByPlay, const Json* box);

} // namespace hooptab
