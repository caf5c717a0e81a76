// What the plays of a game come to, under the names that attributes of <bbgame> have for it ("fgm", "tp",
// "pts_bench"): of each player, of the team's own row and of the whole team, in each period and in the game.
#pragma once

#include "foreign/ForeignGame.h"
#include "foreign/ScoreFlow.h"

#include <map>
#include <set>
#include <string_view>
#include <tuple>

namespace hooptab {

class BbGameBox {
 public:
  static constexpr int kTeamRow = -1;   // in place of a player
  static constexpr int kWholeTeam = -2; // its own row included
  static constexpr int kWholeGame = 0;  // in place of a period

  explicit BbGameBox(const ForeignGame& game);

  [[nodiscard]] int count(Side team, int player, int period, std::string_view attribute) const;
  [[nodiscard]] bool isOnCourt(const Doer& player) const; // at the end
  [[nodiscard]] bool hasPlayed(const Doer& player) const;
  // Whether every two-pointer that was made tells where it was, so that points in the paint are known.
  [[nodiscard]] bool knowsPaint() const { return m_knowsPaint; }

 private:
  void take(const ForeignEvent& event);
  void add(const Doer& doer, std::string_view attribute, int amount = 1);
  void takeShot(const ForeignEvent& shot, const ShotOrigin& origin);
  void score(const ForeignEvent& shot, const ShotOrigin& origin);
  void advance(int period, int centiseconds); // the clock

  const ForeignGame& m_game;
  int m_period = 0;
  int m_centiseconds = 0; // on the clock
  std::map<std::tuple<Side, int, int, std::string_view>, int> m_counts;
  PerSide<std::set<int>> m_onCourt = {};
  std::map<std::tuple<Side, int, int>, int> m_played; // hundredths, by team, player and period
  bool m_knowsPaint = true;
};

} // namespace hooptab
