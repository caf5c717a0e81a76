// Who has the ball after each event of a game, and in which possession, counted from 1 through the whole
// game, both teams together. Nobody records who has the ball; the events tell:
// - A made field goal ends a possession, and so do the last free throw where it is made, a defensive rebound,
//   a turnover, and the end of a period. The ball then is the other team's. An offensive rebound goes on with
//   the possession.
// - The event that ends a possession belongs to it, and so do those that follow from it: the assist, the
//   steal, a foul on the shooter and his free throw, and whatever else stands at the same clock, until a team
//   does something with the ball.
// - A team that shoots, loses the ball or takes an offensive rebound has the ball. Where it was the other's,
//   that one's possession has ended without an event, and has a number all the same: within a period
//   possessions alternate.
// - Free throws of technical fouls belong to the possession that they interrupt. After those of
//   unsportsmanlike and disqualifying fouls the ball stays with who shot them.
// - A period begins with nobody's ball, until a jump ball is won or the first of these events tells whose it
//   is.
#pragma once

#include "game/EventList.h"
#include "game/FreeThrows.h"
#include "game/Side.h"

#include <cstddef>
#include <optional>

namespace hooptab {

class Possessions {
 public:
  // In a game without time, free throws belong to their foul until the ball is in play again. The list must
  // outlive it.
  Possessions(const EventList& events, bool hasTime) : m_events(events), m_throws(hasTime) {}

  struct Stand {
    // Whose possession the event belongs to; none: nobody is known to have the ball.
    std::optional<Side> team = {};
    int number = 0;                // 0 where there is no team
    PerSide<int> begun = {};       // possessions that began with this event, by team
    bool isTechnicalThrow = false; // a free throw that a technical foul awarded
  };
  // The next event of the list that counts.
  Stand take(const GameEvent& event, std::size_t place);

 private:
  void takeShot(const GameEvent& event, const std::optional<FreeThrows::Link>& link);
  void takeThrow(const GameEvent& event, const std::optional<FreeThrows::Link>& link);
  [[nodiscard]] bool followsTheEnd(const GameEvent& event) const;
  void has(Side team);
  void begin(Side team);
  void end(const GameEvent& event);

  const EventList& m_events;
  FreeThrows m_throws;
  int m_period = 0;
  std::optional<Side> m_team;
  int m_number = 0;
  PerSide<int> m_begun = {};
  bool m_isTechnicalThrow = false;
  const GameEvent* m_end = nullptr; // what ended the possession of m_team, until the next one begins
};

} // namespace hooptab
