// The rules under which a game is played, as bodies of the sport publish them: one row for each. A game names
// its set in its details; what it says itself (periods, minutes, fouls) holds above the set.
#pragma once

#include "settings/Text.h"

#include <array>
#include <string_view>

namespace hooptab {

struct TimeOutRules {
  std::array<int, 2> inHalf; // at most in the first half of a game, and in the second
  int inGame;                // in all regular periods together; 0: what the halves allow
  int inLastPeriod;          // of the regular ones; 0: what the half allows
  int lastSeconds;           // of that period, in which only
  int inLastSeconds;         // so many are left; 0: no such rule
  int inOvertime;            // in each
  bool isKept;               // what was not taken in the regular periods can be in overtime
};

struct RuleSet {
  std::string_view key; // in the file
  Text name;
  int periods;
  int minutes;         // of a period
  int overtimeMinutes; // of each overtime
  int bonus;           // team fouls in a period after which the next one is shot
  int personalFouls;   // with which a player is out
  int technicalFouls;  // the same
  int coachTechnicals; // of his own, with which a coach is out
  int benchTechnicals; // the same, of coach and bench together
  bool keepsFouls;     // an overtime goes on with the team fouls of the last period
  bool countsBench;    // technical fouls of coach and bench count as team fouls for the bonus
  TimeOutRules timeOuts;
};

// Sources: FIBA, Official Basketball Rules 2024: article 8 (time), 18.2.5 (time-outs), 36.3 and 39 (technical
// fouls), 40.1 and 41.1 (five fouls, team fouls, which are those of players alone). NBA, Official Rules: rule
// 5, section II (time) and VI (time-outs), rule 12 A, section V and B, section V (fouls). NCAA, Men's
// Basketball Rules: rule 5 (time; four time-outs, three of them at most in the second half, as where a game
// is broadcast) and rule 10 (fouls; the seventh of a half is the first that is shot). Young people play by
// the rules of FIBA, with periods of eight and overtimes of four minutes as federations set them for
// under 13.
inline constexpr std::array kRuleSets = std::to_array<RuleSet>({
    {"FIBA", Text::RulesFiba, 4, 10, 5, 4, 5, 2, 2, 3, true, false, {{2, 3}, 0, 0, 120, 2, 1, false}},
    {"NBA", Text::RulesNba, 4, 12, 5, 4, 6, 2, 2, 0, false, false, {{7, 7}, 7, 4, 180, 2, 2, false}},
    {"NCAA", Text::RulesNcaa, 2, 20, 5, 6, 5, 2, 2, 3, true, true, {{4, 3}, 4, 0, 0, 0, 1, true}},
    {"FIBAJEUNES",
     Text::RulesFibaYouth,
     4,
     8,
     4,
     4,
     5,
     2,
     2,
     3,
     true,
     false,
     {{2, 3}, 0, 0, 120, 2, 1, false}},
});

// Null for a key that is none of them, as for none.
[[nodiscard]] constexpr const RuleSet* ruleSetOf(std::string_view key) {
  for (const RuleSet& set : kRuleSets) {
    if (set.key == key)
      return &set;
  }
  return nullptr;
}

} // namespace hooptab
