// Which team fouls count towards the bonus: those of the period; in overtime of a game that keeps them, all
// from the last regular period on.
#pragma once

#include "game/GameDetails.h"
#include "game/GameState.h"

namespace hooptab {

// The period from which on the fouls count together that are in force in `period`.
[[nodiscard]] int firstPeriodOfFouls(const GameDetails& details, int period);
[[nodiscard]] int teamFouls(const GameDetails& details, const GameState& state, int team, int period);
// Whether so many have reached the limit, so that the other team shoots bonus free throws.
[[nodiscard]] bool isInBonus(const GameDetails& details, int fouls);

} // namespace hooptab
