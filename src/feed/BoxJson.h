// A box score in JSON, the same in every language: keys, and positions in English. docs/formats names its
// members; what more the feed of a running game tells of teams and players is put in by whoever asks.
#pragma once

#include "feed/JsonWriter.h"
#include "game/CountedGame.h"
#include "game/Side.h"
#include "insight/GameInsight.h"
#include "scorecard/BoxScore.h"

#include <functional>
#include <string>

namespace hooptab {

// A whole file of its own; `file` is the game's, as it was asked for.
[[nodiscard]] std::string boxJson(const CountedGame& counted, const std::string& file);

struct BoxJsonParts {
  bool hasLines = true;
  std::function<std::string(const BoxRow& row)> nameOf = {}; // else the whole name
  // Members behind the others.
  std::function<void(JsonWriter& json, Side team)> ofTeam = {};
  std::function<void(JsonWriter& json, Side team, int entry, const GameInsight& insight)> ofPlayer = {};
};
// Its members, in an object that is open: teams, time in lead, lead changes and ties.
void writeBox(JsonWriter& json, const CountedGame& counted, const BoxJsonParts& parts);

// Periods of the game that have an event; those from the eighth on share their points and fouls, so at most
// eight.
[[nodiscard]] int shownPeriods(const Game& game);

} // namespace hooptab
