// Who of both teams is on court in a game of another system, from its starters and substitutions; and where
// the source has a hole.
#pragma once

#include "foreign/ExchangeNote.h"
#include "foreign/ForeignGame.h"

#include <array>
#include <set>
#include <vector>

namespace hooptab {

class LineUps {
 public:
  // With those who begin: the starters that the file names, else who must have been on court, as their events
  // in the first period say.
  explicit LineUps(const ForeignGame& game);

  [[nodiscard]] bool isOnCourt(const Doer& player) const;
  [[nodiscard]] const std::set<int>& onCourt(Side team) const { return m_onCourt[team]; }
  // A change that the source does not explain (in twice, out while off) is told, and made.
  void change(const ForeignEvent& substitution);
  // Tells a team that goes on with another number of players than five; once for each such line-up.
  void checkAt(int period, int centiseconds);

  [[nodiscard]] std::vector<ExchangeNote> takeNotes() { return std::move(m_notes); }

 private:
  void infer(Side team);
  [[nodiscard]] std::string nameOf(const Doer& player) const;

  const ForeignGame& m_game;
  PerSide<std::set<int>> m_onCourt = {};
  PerSide<std::set<int>> m_told = {}; // the line-ups of other than five that were told last
  std::vector<ExchangeNote> m_notes;
};

} // namespace hooptab
