// The statistics of a player, line or team as members of a JSON object.
#pragma once

#include "feed/JsonWriter.h"
#include "game/Statistics.h"
#include "insight/Rates.h"

namespace hooptab {

// Those of a game's table, the same in a game and in a season.
void writeNumbers(JsonWriter& json, const BoxNumbers& numbers);
// Those that only a season's tables have.
void writeSeasonNumbers(JsonWriter& json, const BoxNumbers& numbers);
// Those of the table of rates, as they are and not in percent; null where there is nothing to divide by.
void writeRates(JsonWriter& json, const RateBasis& basis, bool ofPlayers = false);

} // namespace hooptab
