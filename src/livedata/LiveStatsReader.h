// Reads data.json of a FIBA LiveStats webcast: the whole of a game, finished or in progress, with its box
// score. The file has neither date nor place, and its players are numbered for this game alone.
#pragma once

#include "foreign/ForeignGame.h"
#include "foreign/SourcePart.h"
#include "livedata/JsonDocument.h"

#include <optional>

namespace hooptab {

[[nodiscard]] std::optional<SourcePart> recogniseLiveStats(const Json& file);
// Throws UnreadableGame where the teams or the list of events are missing.
[[nodiscard]] ForeignGame readLiveStats(const Json& file);

} // namespace hooptab
