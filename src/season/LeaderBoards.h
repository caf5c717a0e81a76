// The leaders of a season as cards: for each of the statistics that most look for, the first five. Who leads,
// and who has played enough for it, is decided as for the lists of leaders.
#pragma once

#include "season/Season.h"

#include <string>
#include <vector>

namespace hooptab {

struct LeaderBoard {
  static constexpr std::size_t kShown = 5;

  std::string title; // with a small first letter where the words have one
  std::string unit;  // "Per game", or the attempts that a share asks for
  std::vector<Leader> leaders;
};

// In a fixed order; those that a view has no leaders of, such as the time per minute, are left out. A rating
// of the user's own stands behind the built-in one.
[[nodiscard]] std::vector<LeaderBoard> leaderBoards(const Season& season, SeasonView view,
                                                    const Settings& settings, const Texts& texts);

} // namespace hooptab
