// How the score of a game went: each score with its time, runs, lead changes, ties, biggest leads, time-outs.
// What a flow chart draws and what a comparison of the teams says. Draws nothing.
#pragma once

#include "game/GameFile.h"
#include "game/Side.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace hooptab {

struct MarginFlow {
  static constexpr int kShownRun = 7; // points from which on a run is worth showing

  // `at`: seconds of play since the game began; in a game without time, the place among its events.
  struct Step {
    std::size_t event = 0; // place in the game's list
    int period = 0;
    int clockSeconds = 0;
    int at = 0;
    PerSide<int> score = {};
    [[nodiscard]] int margin() const { return score[Side::Visitor] - score[Side::Home]; }
  };
  struct Period {
    int number = 0;
    int begin = 0;
    int end = 0;  // of the last one, its last event so far
    int full = 0; // where it ends, or will end
  };
  // Points of one team with none of the other, across periods; `first` and `last` are places in `steps`.
  struct Run {
    Side team = Side::Visitor;
    int points = 0;
    std::size_t first = 0;
    std::size_t last = 0;
  };
  struct TimeOut {
    std::optional<Side> team = {}; // none: nobody's
    int at = 0;
    std::size_t event = 0;
  };
  // The clock of the score that reached it, for a run of its last; of equal leads the last, of equal runs the
  // first.
  struct Peak {
    int points = 0;
    int period = 0;
    int clockSeconds = 0;
    friend bool operator==(const Peak&, const Peak&) = default;
  };

  bool hasTime = true;
  std::vector<Step> steps; // one for each score
  std::vector<Period> periods;
  std::vector<Run> runs;                // of kShownRun points and more
  std::vector<std::size_t> leadChanges; // places in `steps`; the first lead is none
  std::vector<TimeOut> timeOuts;
  PerSide<std::optional<Peak>> biggestLead = {}; // none: never led
  PerSide<std::optional<Peak>> biggestRun = {};  // none: never scored
  int timesTied = 0;                             // scores that made it equal

  [[nodiscard]] int length() const { return periods.empty() ? 0 : periods.back().end; }
  // Visitors less home after all that was scored up to then.
  [[nodiscard]] int marginAt(int at) const;
};

// A game of totals has no flow: all of it is empty.
[[nodiscard]] MarginFlow marginFlowOf(const Game& game);

} // namespace hooptab
