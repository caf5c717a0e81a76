// What a bench is told of a running game in JSON: the figures of assistant/BenchFigures, in one language.
// docs/formats/feed.md describes it.
#pragma once

#include "assistant/BenchRecord.h"
#include "feed/FeedGame.h"

#include <string>

namespace hooptab {

// `record` is the game's, counted since its last change.
[[nodiscard]] std::string feedBench(const RunningGame& game, const BenchRecord& record, Side us,
                                    const FeedMoment& moment, const Texts& texts);

} // namespace hooptab
