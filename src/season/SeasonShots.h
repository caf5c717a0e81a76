// The field goals of a season by zone of the court: of a player, of a team, or of all selected games, which
// is what the others are compared with. Draws nothing.
#pragma once

#include "scorecard/ShotChart.h"
#include "season/SeasonStatistics.h"

#include <cstdint>
#include <span>

namespace hooptab {

// `games` are places in the catalogue's games.
[[nodiscard]] ShotSums shotsOfGames(const GameCatalogue& catalogue, std::span<const std::size_t> games);
[[nodiscard]] ShotSums shotsOfTeam(const GameCatalogue& catalogue, std::span<const std::size_t> games,
                                   SeasonId team);
// Those of whoever played against it.
[[nodiscard]] ShotSums shotsAgainst(const GameCatalogue& catalogue, std::span<const std::size_t> games,
                                    SeasonId team);
[[nodiscard]] ShotSums shotsOfPlayer(const GameCatalogue& catalogue, std::span<const GameResult> results,
                                     SeasonId player);

// How far a zone's percentage is from the one it is compared with, in percentage points; 0 where either has
// no attempts.
[[nodiscard]] double differenceInPoints(const ZoneSum& zone, const ZoneSum& average);

} // namespace hooptab
