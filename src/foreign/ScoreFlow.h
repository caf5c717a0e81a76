// What only the order of a game's events tells: leads, runs, ties, and which points came after an offensive
// rebound or the other team's turnover. For the box scores of other systems; where they hold a judgement of
// their own (a fast break), only what was recorded counts.
#pragma once

#include "foreign/ForeignGame.h"

#include <vector>

namespace hooptab {

// By place in the list of events: as each shot tells it; of those that do not, by the order of the events.
[[nodiscard]] std::vector<ShotOrigin> shotOrigins(const ForeignGame& game);

struct ScoreFlow {
  struct Team {
    int points = 0;
    int biggestLead = 0;       // 0: never led
    int biggestLeadPeriod = 0; // when it was reached last
    int biggestLeadCentiseconds = 0;
    int biggestRun = 0; // points with none of the other team, across periods
    int centisecondsLeading = 0;
    int leadsTaken = 0;                   // from the other team
    int tiesMade = 0;                     // by a score of this team
    std::vector<int> pointsOfPeriod = {}; // of all periods that have begun
  };
  PerSide<Team> teams = {};
  int leadChanges = 0; // the first lead is none
  int timesLevel = 0;  // scores that make it equal
  int centisecondsLevel = 0;
};
[[nodiscard]] ScoreFlow scoreFlow(const ForeignGame& game);

// Of an event; 0 of what does not score.
[[nodiscard]] int pointsOf(const ForeignEvent& event);

} // namespace hooptab
