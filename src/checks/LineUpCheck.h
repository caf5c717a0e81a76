// Who is on court, followed from stop to stop: lists that cannot be so, how many are there while the clock
// runs, and whether the players' times sum up.
#pragma once

#include "checks/Finding.h"
#include "game/GameFile.h"
#include "game/PlayerLookup.h"
#include "game/Rules.h"
#include "game/Side.h"

#include <array>
#include <optional>
#include <vector>

namespace hooptab {

class LineUpCheck {
 public:
  // Adds what it finds. Both must outlive it.
  LineUpCheck(const Game& game, std::vector<Finding>& findings) : m_game(game), m_findings(findings) {}

  // In the order of the game, events that count alone; a stop and a start by their places in the list.
  void enterPeriod(const GameEvent& first);
  void stop(std::size_t event);
  void start(std::size_t event);
  void finish() { checkTimes(); }

  // True too for a side without players, which is always there.
  [[nodiscard]] bool isOnCourt(Side team, const RosterPlayer& player) const;

 private:
  struct Court {
    std::string_view list;                 // as written
    std::vector<ListedPlayer> players;     // each once
    int timed = 0;                         // of them, whose time counts
    int since = 0;                         // clock from which time counts for them
    int playersSeconds = 0;                // of this period
    bool isTold = false;                   // that they are not five
    std::optional<std::size_t> lastCredit; // the stop up to which it was counted
  };

  [[nodiscard]] bool isFollowed(Side team) const { return !isTeamItself(m_game.roster[team]); }
  void readList(Side team, std::size_t event);
  void checkTimes();

  const Game& m_game;
  std::vector<Finding>& m_findings;
  PerSide<Court> m_courts;
  std::optional<std::size_t> m_stop; // the latest
  int m_firstClock = 0;              // of the period
  int m_lastClock = 0;               // of its last stop
};

} // namespace hooptab
