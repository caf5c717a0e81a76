// What a game counts to here, under the names by which the boxes of other systems are held against it
// (exchange/Reconciliation.h lists them).
#pragma once

#include "game/GameFile.h"
#include "game/GameState.h"
#include "game/Statistics.h"

#include <array>
#include <span>
#include <string_view>

namespace hooptab {

// Of a player, or of all players of a team together.
struct OwnNumbers {
  BoxNumbers box = {};
  int foulsDrawn = 0;
  int blocksAgainst = 0;
  int plusMinus = 0;
  [[nodiscard]] int fouls() const { return box.counters[Counter::PF] + box.counters[Counter::TF]; }
};

struct NamedNumber {
  std::string_view name;
  int (*value)(const OwnNumbers&);
};
struct NamedRowNumber {
  std::string_view name;
  int (*value)(const TeamRow&);
};
[[nodiscard]] std::span<const NamedNumber> numbersOfPlayers();
[[nodiscard]] std::span<const NamedRowNumber> numbersOfTeamRows();

// A game counted, with the points made and allowed while each player was on court.
class OwnCount {
 public:
  explicit OwnCount(const Game& game);
  [[nodiscard]] const GameState& state() const { return m_state; }
  // `entry` as in the state: 0 are all others.
  [[nodiscard]] OwnNumbers of(Side team, std::size_t entry) const;
  [[nodiscard]] OwnNumbers ofTeam(Side team) const; // without the team's own row

 private:
  void share(Side scorer, int points);

  GameState m_state;
  PerSide<std::array<int, GameState::kPlayerEntries>> m_plusMinus = {};
};

} // namespace hooptab
