#include "game/TeamFouls.h"

namespace hooptab {

int firstPeriodOfFouls(const GameDetails& details, int period) {
  return details.keepsBonus && details.periods > 0 && period > details.periods ? details.periods : period;
}

int teamFouls(const GameDetails& details, const GameState& state, int team, int period) {
  const auto& periods = state.periods[static_cast<std::size_t>(team)];
  int fouls = 0;
  for (std::size_t row = GameState::periodRow(firstPeriodOfFouls(details, period));
       row <= GameState::periodRow(period); ++row)
    fouls += periods[row].fouls;
  return fouls;
}

bool isInBonus(const GameDetails& details, int fouls) {
  return details.bonus > 0 && fouls >= details.bonus;
}

} // namespace hooptab
