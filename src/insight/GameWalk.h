// How a game stood at each of its events: score, line-ups, possession, and the seconds since it began; and
// its stints, the stretches of a period in which the same players of both teams are on court. Counts seconds
// and points as the tally does. Deleted events and lines that cannot be understood are no part of it.
#pragma once

#include "game/GameFile.h"
#include "game/Side.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace hooptab {

struct Stint {
  int number = 0; // from 1
  int period = 0;
  int startClock = 0; // seconds left in the period
  int endClock = 0;
  // Between a stop at which they came on court and the last one that names them; not below 0. Players of one
  // team who come in at the same clock as those of the other, one stop after the other, make a stint of 0.
  int seconds = 0;
  PerSide<std::vector<std::string>> onCourt = {}; // jerseys as the rosters have them, ascending
  PerSide<int> points = {};                       // that were scored in it
  PerSide<int> possessions = {};                  // that began in it
};

struct WalkedEvent {
  std::size_t place = 0;    // in the game's list
  int elapsed = 0;          // seconds of play since the game began; 0 in a game without time
  PerSide<int> before = {}; // the score
  PerSide<int> after = {};
  int possession = 0;                // as insight/Possessions.h counts them; 0: none
  std::optional<Side> withBall = {}; // whose it is
  int stint = 0;                     // 0: nobody is on court. Of a stop that changes players, the new one
};

struct GameWalk {
  std::vector<WalkedEvent> events; // those that count
  std::vector<Stint> stints;
  PerSide<int> possessions = {};

  // The line-ups at an event: empty where nobody is on court.
  [[nodiscard]] const std::vector<std::string>& onCourt(const WalkedEvent& event, Side team) const;
};

// A game of totals has no order, and so neither possessions nor stints.
[[nodiscard]] GameWalk walkGame(const Game& game);

// The jerseys of an on-court list, in the form of Stint::onCourt.
[[nodiscard]] std::vector<std::string> jerseysOf(std::string_view list, const Roster& roster);

// Seconds of play since the game began. A regular period is as long as the game's rules say, an overtime as
// its highest clock; a period with a clock above that is as long as that clock.
class ElapsedTime {
 public:
  explicit ElapsedTime(const Game& game);
  // Both of a period that has events.
  [[nodiscard]] int at(int period, int clockSeconds) const;
  [[nodiscard]] int beginOf(int period) const;

 private:
  struct Length {
    int period = 0;
    int begin = 0; // in seconds since the game began
    int end = 0;
  };
  std::vector<Length> m_periods; // ascending
};

} // namespace hooptab
