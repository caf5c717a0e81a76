// A change to a recorded game while it is put together: steps taken one after the other on a copy of the
// events, the lists of all stops behind a changed one carried on, and the steps that take all of it back.
// Writes nothing; knows no clock and no file.
#pragma once

#include "recording/OnCourt.h"

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace hooptab {

class EventEdit {
 public:
  EventEdit(EventList events, const Rosters& rosters) : m_events(std::move(events)), m_rosters(rosters) {}

  // False when a step cannot be taken; what was put together then is not to be used.
  bool take(const EventChange& step); // to the letter
  bool takeCarryingOn(const EventChange& step);
  // An event to the place before another of its period (empty: the end). A stop takes the players whom it
  // changed along: between its two places it has happened no longer, or happens now.
  bool moveCarryingOn(const EventPlace& event, const std::string& before);
  // The lists in force before `from` were `before` and are others now.
  bool carryOn(const EventPlace& from, const OnCourt& before);

  const EventList& events() const { return m_events; }
  const std::vector<EventChange>& steps() const { return m_steps; }
  const std::vector<EventChange>& back() const { return m_back; } // in the order in which they are taken
  // Where six would be on court, or one of them twice.
  const std::optional<CourtConflict>& conflict() const { return m_conflict; }

 private:
  [[nodiscard]] std::optional<CourtConflict> tooMany(const EventChange& step) const;

  EventList m_events;
  Rosters m_rosters;
  std::vector<EventChange> m_steps;
  std::vector<EventChange> m_back;
  std::optional<CourtConflict> m_conflict;
};

[[nodiscard]] inline EventChange replacement(const EventPlace& event, std::string line) {
  return {EventChange::Kind::Replace, event.period, event.key, std::move(line), {}};
}
// A line with the mark of deletion, or without it.
[[nodiscard]] std::string withDeletion(std::string_view line, bool isDeleted);
// The key behind an event of its period; empty for the last.
[[nodiscard]] std::string keyBehind(const EventList& events, const EventPlace& event);
// The key before which an event of that clock stands: `before` (empty for the end of the period) where the
// clocks around allow it, else behind the last of equal clock, or where the clock falls. Of an event that is
// there already its own place says nothing, nor does that of the start that goes with it.
struct PlacedEvent {
  EventPlace event; // no key: a new one
  std::optional<EventPlace> start;
};
[[nodiscard]] std::string placeForClock(const EventList& events, const PlacedEvent& placed, int clockSeconds,
                                        const std::string& before);
// Whether the clock runs at the place before that event (empty: at the end of the period).
[[nodiscard]] bool isRunningBefore(const EventList& events, int period, const std::string& before);
// The start at the same clock with which a substitution goes on while the clock runs: it belongs to the stop
// before it, deleted or not like that.
[[nodiscard]] std::optional<EventPlace> startOfSubstitution(const EventList& events, const EventPlace& stop,
                                                            const Rosters& rosters);
// A stop that its period needs: without it, nobody would be credited with the time up to its last stop.
[[nodiscard]] bool closesPeriod(const EventList& events, const EventPlace& event);

} // namespace hooptab
