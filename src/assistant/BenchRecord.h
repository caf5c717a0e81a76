// What the events of a running game have come to, for those on its benches: the insight of the whole game and
// of what followed the last time-out, the fives, the run, and since when each player stands where he is.
// Counted anew after a change; how far the clock has run since then is BenchFigures' to add.
#pragma once

#include "game/Side.h"
#include "insight/GameInsight.h"
#include "insight/GameWalk.h"
#include "recording/Fives.h"
#include "recording/LiveWords.h"

#include <array>
#include <optional>
#include <vector>

namespace hooptab {

class BenchRecord {
 public:
  // What both teams have done behind the last time-out, whosever it was; all of the game where there was
  // none.
  struct Since {
    int period = 0; // of the time-out; 0: there was none
    int clockSeconds = 0;
    CourtShare share;
    PerSide<int> turnovers = {}; // the team's own included
  };
  struct Scorer {
    int player = 0; // entry; 0: in no roster
    int points = 0;
  };

  // The game need not outlive it.
  explicit BenchRecord(const LiveMoment& game);

  GameInsight insight;
  Fives fives;
  Since since;
  std::optional<ScoringRun> run;
  std::vector<Scorer> scorers; // of the run, the one with most points first

  // Seconds of play from the run's first score until now.
  [[nodiscard]] int secondsOfRun(const LiveMoment& game) const { return secondsOfPlay(game) - m_runBegan; }
  // Seconds of play since the player came on court, or left it last; none for one who has done neither. A
  // break between periods takes no time, and who comes back at the clock at which he left never was away.
  [[nodiscard]] std::optional<int> secondsSinceTurn(const LiveMoment& game, Side team, int player) const;

 private:
  struct Turn {
    std::optional<int> at = {};
    std::optional<int> before = {}; // of the one before, which counts again where he turns back
  };
  [[nodiscard]] int secondsOfPlay(const LiveMoment& game) const; // of the game, until now
  void followTimeOuts(const Game& game);
  void followRun(const Game& game);
  void followTurns(const LiveMoment& game);

  ElapsedTime m_elapsed;
  int m_lastPeriod = 0; // of the last event that counts
  int m_lastSeconds = 0;
  int m_runBegan = 0;
  PerSide<std::array<Turn, GameState::kPlayerEntries>> m_turns = {};
};

} // namespace hooptab
