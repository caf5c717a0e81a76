// The box score of NBA live data, for reading: what it says of the game, both teams with their players, and
// the official figures of each.
#pragma once

#include "foreign/ForeignGame.h"
#include "livedata/JsonDocument.h"

namespace hooptab {

// Throws UnreadableGame where it does not name both teams.
void readNbaLiveBox(const Json& box, ForeignGame& game);

// That the game is over.
[[nodiscard]] bool isFinalBox(const Json& box);

} // namespace hooptab
