// Turns event lines into counters: one event at a time while a game is recorded, or a whole list. The same
// function serves both, so that what is shown while recording and what is read back from disk cannot differ.
#pragma once

#include "game/EventList.h"
#include "game/GameState.h"
#include "game/Roster.h"
#include "game/Side.h"

#include <optional>
#include <span>
#include <string>
#include <vector>

namespace hooptab {

// A count that would have left the 16-bit range. The tally goes on without the events that do not fit; the
// caller tells the user.
struct CountOutOfRange {
  Side team = Side::Visitor;
  // Whose count and which: "12 PF" of a player, "IN-04-05 PF" of a line ("IN-": of all without one),
  // "PERIODE1 PTS" of the team in a period.
  std::string what;
};

class Tally {
 public:
  // Works on `state`, which it clears; both rosters must outlive it.
  Tally(GameState& state, const Roster& visitors, const Roster& home);

  void clear();
  // Counts one event that follows all those before it. Deleted and not understood events count nothing.
  void apply(const GameEvent& event, std::size_t eventIndex);

  const std::optional<CountOutOfRange>& outOfRange() const { return m_outOfRange; }

  // Clears and counts a whole list.
  [[nodiscard]] static std::optional<CountOutOfRange> run(GameState& state, const EventList& events,
                                                          const Roster& visitors, const Roster& home);

 private:
  void trackClock(const GameEvent& event);
  void changeLines(const GameEvent& event);
  void setLine(Side team, std::string_view list);
  [[nodiscard]] std::size_t lineEntry(Side team, unsigned members, const std::vector<std::string>& strangers);
  void creditTime(Side team, int clockSeconds);
  void count(const GameEvent& event, std::size_t eventIndex);
  void countExtras(const GameEvent& event);
  void countOfTeam(const GameEvent& event);
  void leaveOut(Side team, std::string_view row, std::string_view count);
  void addPoints(Side team, int points);

  GameState& m_state;
  PerSide<const Roster*> m_rosters;
  PerSide<std::string> m_lastList; // as written: an equal list is the same line
  PerSide<int> m_points = {};
  std::optional<CountOutOfRange> m_outOfRange;
};

} // namespace hooptab
