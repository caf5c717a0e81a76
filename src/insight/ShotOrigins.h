// Where the points of each shot come from, as far as the order of the events tells: from inside the box, from
// the other team's turnover, from a second chance, soon after the ball was gained, or on a fast break that
// was recorded as such. Sums nothing.
#pragma once

#include "game/GameFile.h"
#include "insight/Possessions.h"

#include <optional>
#include <vector>

namespace hooptab {

// Of a field goal or free throw, made or missed.
struct OriginOfShot {
  bool isInPaint = false; // a two-pointer from inside the box; without a place one at the basket by its kind
  bool isFromTurnover = false; // in the possession that follows the other team's turnover
  bool isSecondChance = false; // behind an offensive rebound of the same possession, the team's own included
  bool isQuick = false;        // soon after gaining the ball: GameInsight::kQuickSeconds
  bool isFastBreak = false;    // recorded as one
};

class ShotOrigins {
 public:
  explicit ShotOrigins(bool hasTime) : m_hasTime(hasTime) {}

  // The next event that counts, and whose possession it belongs to. Nothing of what is no shot.
  OriginOfShot take(const GameEvent& event, const Possessions::Stand& stand);

 private:
  void takeRebound(const GameEvent& rebound, const Possessions::Stand& stand);
  [[nodiscard]] OriginOfShot takeShot(const GameEvent& shot, const Possessions::Stand& stand);

  bool m_hasTime;
  int m_period = 0;
  int m_possession = 0;
  int m_fromTurnover = 0;              // the number of the possession that follows the last turnover
  int m_secondChance = 0;              // of the one with the last offensive rebound
  int m_before = 0;                    // the same before that rebound
  bool m_isThrow = false;              // the last shot was a free throw
  std::optional<int> m_scoredAt;       // its clock, where it was made
  int m_scoredBy = 0;                  // the number of its possession
  std::optional<int> m_reboundOfThrow; // its clock, where the last rebound was of one
  std::optional<int> m_lastClock;
  std::optional<int> m_gained; // the clock at which the ball was gained
};

// By place in the game's list of events.
[[nodiscard]] std::vector<OriginOfShot> shotOriginsOf(const Game& game);

} // namespace hooptab
