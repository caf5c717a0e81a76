// Where a page about one game gets what its shots are compared with beyond that game: it asks, and whoever
// opens the windows knows whether there is a season to answer from.
#pragma once

#include "game/GameDetails.h"
#include "scorecard/ShotChart.h"

#include <functional>
#include <optional>

namespace hooptab {

// The shots of a season's games: of a team of this game, or without one of all teams. Nothing where no season
// is open, or the team did not play in it.
using SeasonShots = std::function<std::optional<ShotSums>(const GameDetails& game, std::optional<Side> team)>;

} // namespace hooptab
