// The numbers by which NBA live data knows a game's teams, players and coaches: those of the game where they
// are numbers, else made up, alike for all files of one game.
#pragma once

#include "foreign/ForeignGame.h"

#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace hooptab {

class NbaLiveIds {
 public:
  explicit NbaLiveIds(const ForeignGame& game);

  [[nodiscard]] const std::string& game() const { return m_game; }
  // 0 for nobody.
  [[nodiscard]] std::int64_t team(std::optional<Side> team) const;
  [[nodiscard]] std::int64_t player(const Doer& doer) const;
  [[nodiscard]] std::int64_t coach(Side team) const { return m_coaches[team]; }

 private:
  std::int64_t take(const std::string& own);

  std::string m_game;
  std::set<std::int64_t> m_taken;
  PerSide<std::int64_t> m_teams = {};
  PerSide<std::vector<std::int64_t>> m_players = {};
  PerSide<std::int64_t> m_coaches = {};
};

} // namespace hooptab
