// What a box score in JSON says of the insight into a game.
#pragma once

#include "feed/JsonWriter.h"
#include "insight/GameInsight.h"
#include "insight/MarginFlow.h"

namespace hooptab {

// Of a team: possessions, points by their origin, biggest lead and run; null of a game entered as totals.
void writeTeamInsight(JsonWriter& json, const GameInsight& insight, const MarginFlow& flow,
                      const CountedGame& counted, Side team);
// Of a game: lead changes and ties.
void writeFlowCounts(JsonWriter& json, const GameInsight& insight, const MarginFlow& flow);

} // namespace hooptab
