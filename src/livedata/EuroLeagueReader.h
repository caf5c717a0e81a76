// Reads a game of the EuroLeague's live service: the play-by-play, and beside it, where they are there, the
// box score (rosters, starters, official numbers) and the shots (places, fast breaks, times by the clock on
// the wall). Rows of one action are brought together by nearness, for the files link none.
#pragma once

#include "foreign/ForeignGame.h"
#include "foreign/SourcePart.h"
#include "livedata/JsonDocument.h"

#include <optional>

namespace hooptab {

// Nothing for what is no file of that service.
[[nodiscard]] std::optional<SourcePart> recogniseEuroLeague(const Json& document);

// Throws UnreadableGame where the play-by-play has no teams or no plays.
[[nodiscard]] ForeignGame readEuroLeague(const Json& playByPlay, const Json* box, const Json* points);

} // namespace hooptab
