// How many time-outs a team has taken, and how many it has left, by the rules of the game.
#pragma once

#include "game/EventList.h"
#include "game/GameDetails.h"
#include "game/Side.h"

#include <array>
#include <map>
#include <optional>

namespace hooptab {

struct RuleSet;

struct TimeOuts {
  int taken = 0; // of those that count together with the ones that are left
  int left = 0;  // never below 0
  friend bool operator==(const TimeOuts&, const TimeOuts&) = default;
};

// Follows a game event by event.
class TimeOutCount {
 public:
  explicit TimeOutCount(const GameDetails& details);
  void take(const GameEvent& event);
  // In `period` with so much of it left. Nothing in a game that names no rules.
  [[nodiscard]] std::optional<TimeOuts> of(Side team, int period, int clockSeconds) const;

 private:
  struct OfPeriod {
    int all = 0;
    int inLastSeconds = 0; // those of which the rules speak
  };
  struct OfTeam {
    std::array<int, 2> inHalf = {};
    int inOvertimes = 0;
    std::map<int, OfPeriod> inPeriod = {};
  };
  [[nodiscard]] std::size_t halfOf(int period) const { return 2 * period <= m_periods ? 0 : 1; }

  const RuleSet* m_set;
  int m_periods; // regular ones
  bool m_hasTime;
  PerSide<OfTeam> m_taken = {};
};

// In `period` with so much of it left, before the event at `before` (all events where none is given). Nothing
// in a game that names no rules.
[[nodiscard]] std::optional<TimeOuts> timeOutsOf(const GameDetails& details, const EventList& events,
                                                 Side team, int period, int clockSeconds,
                                                 std::optional<std::size_t> before = std::nullopt);

} // namespace hooptab
