#include "insight/Rotation.h"

#include "insight/GameWalk.h"

#include <algorithm>
#include <tuple>

namespace hooptab {

std::vector<Stay> rotationOf(const Game& game) {
  std::vector<Stay> stays;
  if (game.details.minutesPerPeriod <= 0 || game.details.inputType != 0)
    return stays;
  const ElapsedTime elapsed(game);
  PerSide<std::array<std::size_t, GameState::kPlayerEntries>> open = {}; // one behind the place in `stays`
  for (const Stint& stint : walkGame(game).stints) {
    const int from = elapsed.at(stint.period, stint.startClock);
    const int to = elapsed.at(stint.period, stint.endClock);
    for (const Side team : kSides) {
      const int margin = stint.points[team] - stint.points[otherSide(team)];
      std::array<bool, GameState::kPlayerEntries> isOn = {};
      for (const std::string& jersey : stint.onCourt[team]) {
        const auto player = static_cast<std::size_t>(game.roster[team].entryOf(jersey));
        isOn[player] = true;
        const std::size_t last = open[team][player];
        if (last == 0 || stays[last - 1].period != stint.period || stays[last - 1].to < from) {
          stays.push_back({team, static_cast<int>(player), stint.period, from, to, margin});
          open[team][player] = stays.size();
          continue;
        }
        stays[last - 1].to = std::max(stays[last - 1].to, to);
        stays[last - 1].plusMinus += margin;
      }
      for (std::size_t player = 0; player < isOn.size(); ++player) {
        if (!isOn[player])
          open[team][player] = 0;
      }
    }
  }
  // Whoever is in no roster has no row of his own; a substitution taken back left a stay of no time.
  std::erase_if(stays, [](const Stay& stay) {
    return stay.player == 0 || (stay.to <= stay.from && stay.plusMinus == 0);
  });
  std::ranges::stable_sort(stays, [](const Stay& left, const Stay& right) {
    return std::tuple(left.team, left.player, left.from) < std::tuple(right.team, right.player, right.from);
  });
  return stays;
}

} // namespace hooptab
