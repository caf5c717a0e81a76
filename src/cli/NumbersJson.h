// The counters of a player, line or team as members of a JSON object, the same in a game and in a season.
#pragma once

#include "cli/JsonWriter.h"
#include "scorecard/BoxScore.h"

namespace hooptab {

void writeNumbers(JsonWriter& json, const BoxNumbers& numbers);

} // namespace hooptab
