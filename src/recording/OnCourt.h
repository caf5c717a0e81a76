// Who stands on court according to the lists of a game's stops, and what a change to one of them does to all
// that follow: every stop carries the lists of both teams, so a substitution that is put in or taken out
// later has to be carried on. Knows no clock and no file.
#pragma once

#include "game/EventList.h"
#include "game/Roster.h"
#include "game/Rules.h"
#include "game/Side.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace hooptab {

// Roster entries as bits (bit n for entry n) of both teams.
using OnCourt = PerSide<unsigned>;

struct Rosters {
  const Roster& visitors;
  const Roster& home;
  const Roster& operator[](Side team) const { return team == Side::Visitor ? visitors : home; }
};

[[nodiscard]] bool isStop(const GameEvent& event); // deleted ones, too
// The lists of a stop; nothing for an event that is none, or is deleted.
[[nodiscard]] std::optional<OnCourt> onCourtOf(const GameEvent& event, const Rosters& rosters);
[[nodiscard]] OnCourt listsOf(const GameEvent& stop, const Rosters& rosters); // of a deleted one, too
// The lists in force behind an event: those of the last stop up to it. Nobody before the first. With `key`
// empty behind the last event of the period and all before it.
[[nodiscard]] OnCourt inForce(const EventList& events, int period, std::string_view key,
                              const Rosters& rosters);
// The same before that event.
[[nodiscard]] OnCourt inForceBefore(const EventList& events, int period, std::string_view key,
                                    const Rosters& rosters);
// Whether a stop, deleted or not, changes who is on court; any other stop is a pause alone.
[[nodiscard]] bool isSubstitution(const EventList& events, int period, std::string_view key,
                                  const Rosters& rosters);
// "IN-04-05,IN-": both lists, as a stop's line has them behind its code.
[[nodiscard]] std::string listsText(const OnCourt& onCourt, const Rosters& rosters);

// Code and lists of a stop.
[[nodiscard]] std::string stopText(const OnCourt& onCourt, const Rosters& rosters);

// A stop's line with other lists; clock, code and the mark of a deleted one stay.
[[nodiscard]] std::string withLists(std::string_view line, const OnCourt& lists, const Rosters& rosters);

// The event that follows one in the order of the game; nothing behind the last.
[[nodiscard]] std::optional<EventPlace> eventBehind(const EventList& events, const EventPlace& event);

// A stop whose lists cannot be carried on, which is for the user to decide.
struct CourtConflict {
  EventPlace event = {};
  Side team = Side::Visitor;
  unsigned players = 0; // six or more who would be on court, or who would come in or leave a second time
  bool isTwice = false;
  friend bool operator==(const CourtConflict&, const CourtConflict&) = default;
};
struct Carried {
  std::vector<EventChange> steps;
  std::optional<CourtConflict> conflict; // the first
};
// The lists in force before the event `from` were `before` and are `after` now: that event and all behind it,
// each stop taken on by the same change, player by player, until one changes that player anyway. Deleted
// stops follow too, so that they fit when they are restored.
[[nodiscard]] Carried carryOn(const EventList& events, const EventPlace& from, const OnCourt& before,
                              const OnCourt& after, const Rosters& rosters);

} // namespace hooptab
