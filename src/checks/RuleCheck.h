// Whether free throws and the fouls that awarded them fit each other, in a game of which a league's sheet
// asks for both, and whether the rules that a game names left its time-outs. Follows a game event by event.
#pragma once

#include "checks/Finding.h"
#include "game/FreeThrows.h"
#include "game/GameFile.h"
#include "game/Rules.h"
#include "game/Side.h"
#include "game/TimeOuts.h"

#include <array>
#include <vector>

namespace hooptab {

class RuleCheck {
 public:
  // Both must outlive it; adds what it finds.
  RuleCheck(const Game& game, std::vector<Finding>& findings);

  // The next event that counts.
  void take(const GameEvent& event, std::size_t place);
  // In the game that goes on, throws may still come.
  void finish();

 private:
  enum class IsOver { Yes, No };
  void checkThrows(const FreeThrows::Stand& stand, IsOver isOver);
  void checkTimeOut(const GameEvent& event, std::size_t place);
  void checkTechnical(const GameEvent& event, std::size_t place);

  const Game& m_game;
  std::vector<Finding>& m_findings;
  const RuleSet* m_rules; // null: the game names none
  bool m_hasAwards;       // the sheet asks for them
  FreeThrows m_throws;
  TimeOutCount m_timeOuts;
  PerSide<BenchTechnicals> m_technicals = {};
};

} // namespace hooptab
