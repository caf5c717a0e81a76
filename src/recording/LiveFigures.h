// What a running game comes to at this moment: to what its stops have credited, the time that has passed
// since is added. A look at the game that holds nothing of its own.
#pragma once

#include "game/Side.h"
#include "recording/LiveMoment.h"

namespace hooptab {

class LiveFigures {
 public:
  explicit LiveFigures(const LiveMoment& game) : m_game(game) {}

  [[nodiscard]] int secondsOnCourt(Side team, int player) const;
  [[nodiscard]] int secondsOfLine(Side team) const; // that those on court have played together; 0 for nobody
  [[nodiscard]] int secondsInLead(LeadState state) const;
  // Of the period; of all overtimes with the last regular period where kept.
  [[nodiscard]] int teamFouls(Side team) const;
  [[nodiscard]] bool isInBonus(Side team) const; // the team whose fouls have reached the limit
  [[nodiscard]] bool isFouledOut(Side team, int player) const;

 private:
  // The next stop will credit what has passed, to those on court and to the lead.
  [[nodiscard]] bool isTimeOpen() const;
  [[nodiscard]] int secondsSinceLists(Side team) const;

  LiveMoment m_game;
};

} // namespace hooptab
