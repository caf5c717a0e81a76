// What a box score in JSON says of the insight into a game.
#pragma once

#include "feed/JsonWriter.h"
#include "insight/GameInsight.h"
#include "insight/MarginFlow.h"
#include "scorecard/BoxScore.h"

#include <optional>

namespace hooptab {

// Of a player or a line; nothing of others, of teams, and of a game without line-ups.
[[nodiscard]] std::optional<int> plusMinusOf(const GameInsight& insight, const GameState& state, Side team,
                                             const BoxRow& row);
// Of a team: possessions, points by their origin, biggest lead and run; null of a game entered as totals.
void writeTeamInsight(JsonWriter& json, const GameInsight& insight, const MarginFlow& flow,
                      const CountedGame& counted, Side team);
// Of a game: lead changes and ties.
void writeFlowCounts(JsonWriter& json, const GameInsight& insight, const MarginFlow& flow);

} // namespace hooptab
