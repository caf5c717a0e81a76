// The totals of a game that was not recorded event by event: for each side fifteen slots with their counts
// and field goals. Holds the rules of counting, turns the totals into event lines and finds them again in
// such lines. Knows no file and no window.
#pragma once

#include "game/EventList.h"
#include "game/GameState.h"
#include "game/Roster.h"
#include "game/Side.h"

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace hooptab {

struct ManualShot {
  bool isMade = false;
  std::string place; // "152,87" as a line writes it; empty for a shot without place
  friend bool operator==(const ManualShot&, const ManualShot&) = default;
};

struct ManualSlot {
  static constexpr std::string_view kNobody = "-1";

  std::string number{kNobody}; // as the roster writes it; a slot of nobody writes no line
  Counters counters; // field goals with a place of their own stay 0 here: the lists are their counts
  std::vector<ManualShot> twoPointers;
  std::vector<ManualShot> threePointers;
  friend bool operator==(const ManualSlot&, const ManualSlot&) = default;

  bool isEmpty() const { return number == kNobody; }
  // Code is GFG or GF3.
  const std::vector<ManualShot>& shots(EventCode code) const {
    return code == EventCode::GF3 ? threePointers : twoPointers;
  }
  std::vector<ManualShot>& shots(EventCode code) {
    return code == EventCode::GF3 ? threePointers : twoPointers;
  }
  // With the field goals counted.
  [[nodiscard]] Counters counts() const;
};

class ManualTotals {
 public:
  static constexpr int kSlots = Roster::kLargestEntry; // 1..15, as the roster's entries
  static constexpr int kPeriod = 1;                    // in which a game of totals has its lines
  static constexpr int kLargestCount = 999;            // of one cell, so that a team's sum stays in its range

  // Every player of the rosters has his slot. Counts the lines that saving would write, in any order; all
  // others (players who are in no roster or after the fifteenth, deleted events, events with a time, what
  // cannot be understood) are kept as they are.
  void load(const Roster& visitors, const Roster& home, const EventList& events);

  const ManualSlot& slot(Side team, int slot) const { return m_slots[team][index(slot - 1)]; }
  ManualSlot& slot(Side team, int slot) { return m_slots[team][index(slot - 1)]; }

  enum class Step { Up, Down };
  // What a button says: an action; a shot that was made (attempts follow), or missed (attempts alone, never
  // under made). Whether anything changed. Not for field goals with a place.
  bool press(Side team, int slot, EventCode code, bool isMade, Step step);
  // A count as typed. Made counts raise the attempts they need; attempts under made are refused, and so are
  // field goals under those that have a place: the other field goals are added and taken away without one.
  enum class Typed { Taken, UnderMade, UnderPlaced, OutOfRange };
  [[nodiscard]] Typed setCount(Side team, int slot, Counter counter, int count);
  // All counts of a player at once; none above the largest, no attempts under made. Field goals that have a
  // place stay as long as there are enough of their kind, the earliest ones first. How many had to go.
  int setCounts(Side team, int slot, const Counters& counts);

  // At whole units of the court.
  void addShot(Side team, int slot, EventCode code, bool isMade, int x, int y);
  void deleteShot(Side team, int slot, EventCode code, std::size_t index);
  // Every slot of the team becomes that of nobody, without counts. A player gets his number again with the
  // first count entered for him.
  void clear(Side team);

  [[nodiscard]] Counters teamCounts(Side team) const;

  // Of the one period that saving writes. In their order: visitors first, slot by slot, kind by kind; behind
  // them the lines that were kept.
  [[nodiscard]] std::vector<std::string> lines() const;
  // Lines of the game that the counts do not hold, those of other periods included.
  std::size_t linesBeside() const { return m_kept.size() + m_linesElsewhere; }

  friend bool operator==(const ManualTotals&, const ManualTotals&) = default;

 private:
  static std::size_t index(int number) { return static_cast<std::size_t>(number); }
  ManualSlot& touched(Side team, int slot);
  bool count(const GameEvent& event, const Roster& visitors, const Roster& home);

  PerSide<std::array<ManualSlot, kSlots>> m_slots;
  PerSide<std::array<std::string, kSlots>> m_jerseys; // of the rosters
  std::vector<std::string> m_kept;
  std::size_t m_linesElsewhere = 0;
};

} // namespace hooptab
