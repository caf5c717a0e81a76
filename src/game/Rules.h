// What the rules of a game say, for everybody who asks: how many may play, which team fouls count towards the
// bonus, who is out.
#pragma once

#include "game/EventList.h"
#include "game/GameDetails.h"
#include "game/GameState.h"
#include "game/Roster.h"
#include "game/Side.h"

namespace hooptab {

inline constexpr int kMostOnCourt = 5;                     // of a team
inline constexpr int kMostPlayers = Roster::kLargestEntry; // of a team in a game

// The period from which on the team fouls count together that are in force in `period`: in overtime of a game
// that keeps them, the last regular one.
[[nodiscard]] int firstPeriodOfFouls(const GameDetails& details, int period);
// Those of players, and of coach and bench where the rules of the game count them.
[[nodiscard]] int teamFouls(const GameDetails& details, const GameState& state, Side team, int period);
// Whether so many have reached the limit, so that the other team shoots bonus free throws.
[[nodiscard]] bool isInBonus(const GameDetails& details, int fouls);

struct PlayerFouls {
  int personal = 0;
  int technical = 0;

  [[nodiscard]] static PlayerFouls of(const Counters& counters) {
    return {counters[Counter::PF], counters[Counter::TF]};
  }
};
// Either limit is reached; 0 is none.
[[nodiscard]] bool isFouledOut(const GameDetails& details, const PlayerFouls& fouls);

// Technical fouls of a coach, and of him and his bench together.
struct BenchTechnicals {
  int ofCoach = 0;
  int all = 0;

  void take(const GameEvent& event); // an XCF
};
[[nodiscard]] BenchTechnicals benchTechnicalsOf(const EventList& events, Side team);
// With two of his own, or three of all, as the rules may have it; never in a game that names none.
[[nodiscard]] bool isCoachOut(const GameDetails& details, const BenchTechnicals& technicals);

// A side that was entered without players is its own one player.
[[nodiscard]] bool isTeamItself(const Roster& roster);

} // namespace hooptab
