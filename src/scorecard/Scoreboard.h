// The head of a scorecard in words and numbers: both teams, score, points and fouls by period, lead, clock
// and state of the game. Lays out nothing.
#pragma once

#include "game/CountedGame.h"
#include "game/Side.h"
#include "settings/Texts.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace hooptab {

struct Scoreboard {
  struct Team {
    std::string abbreviation;
    std::string name;
    std::uint32_t colour = 0; // red + 256 * green + 65536 * blue
    int points = 0;
  };
  struct Period {
    std::string label; // "1", "OT1", "8+"
    PerSide<int> points = {};
    PerSide<int> fouls =
        {}; // those in force: in overtime the last regular period's, too, where they are kept
    PerSide<bool> isInBonus = {}; // the other team shoots bonus free throws
    bool isPlayed = false;        // has events; one that has not shows no numbers
  };
  struct Lead {
    std::string time; // mm:ss
    int times = 0;    // how often this state came about
  };

  PerSide<Team> teams;
  std::vector<Period> periods; // at most 8
  std::array<Lead, 3> leads;   // in the order of LeadState
  std::string clock;           // of the last event; "--:--" in a game without time
  std::string period;          // of the last event
  bool isFinished = false;
  bool hasTime = true;
};

[[nodiscard]] Scoreboard scoreboard(const CountedGame& counted, const Texts& texts);

} // namespace hooptab
