// The rows of a EuroLeague play-by-play as events of a game: in the order of the lists, each in its period,
// with what belongs together brought together.
#pragma once

#include "foreign/ForeignGame.h"
#include "livedata/EuroLeagueTeams.h"
#include "livedata/JsonDocument.h"

namespace hooptab {

// Adds events, and players that the box score does not have. `points`: the shots' file, null where there is
// none. Throws UnreadableGame where there are no plays.
void readEuroLeaguePlays(const Json& playByPlay, const Json* points, EuroLeagueTeams& teams,
                         ForeignGame& game);

} // namespace hooptab
