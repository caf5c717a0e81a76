// What an edit of a recorded game comes to: events deleted and restored, changed, put in, and substitutions
// carried on through all that follow. Plans alone, so that what does not fit can be shown before anything is
// written; the live game takes a plan and remembers how it is taken back.
#pragma once

#include "game/Side.h"
#include "recording/EventEdit.h"
#include "recording/LiveLog.h"

#include <optional>
#include <span>
#include <string>
#include <utility>
#include <vector>

namespace hooptab {

struct EditPlan {
  Text text = Text::None; // names the edit
  bool isPossible = false;
  std::vector<EventChange> steps = {};
  std::vector<EventChange> back = {}; // that take it back
  // Of one that is not possible: where six would be on court, or one of them twice.
  std::optional<CourtConflict> conflict = std::nullopt;
};

class GameEditing {
 public:
  enum class Where { Before, Behind };
  struct Counted {
    EventCode kind = EventCode::Unknown;
    bool isMade = false;                      // shots
    std::optional<Side> team = Side::Visitor; // of a time-out also none: nobody's
    int player = 0;                           // entry; of what a team does 0
    std::optional<std::pair<double, double>> place = std::nullopt;
    // Keys and values that become others; an empty value takes one away.
    std::vector<std::pair<std::string, std::string>> details = {};
  };

  // For one edit: after a change to the log, ask a new one.
  explicit GameEditing(const LiveLog& log) : m_log(log) {}

  // Marks events as deleted or restores them. The stop that ends a period cannot be deleted. A substitution
  // while the clock runs takes its start of the clock along.
  [[nodiscard]] EditPlan deletion(std::span<const EventPlace> events, bool isDeleted) const;
  [[nodiscard]] bool canDelete(const EventPlace& event) const {
    return !closesPeriod(m_log.game().events, event);
  }
  // A line in place of another, its mark of deletion apart. With another clock, past those of its neighbours,
  // the event moves, within its period, behind the last of equal clock.
  [[nodiscard]] EditPlan replacement(const EventPlace& event, int clockSeconds,
                                     const std::string& eventText) const;
  // A substitution while the clock runs takes its start of the clock along.
  [[nodiscard]] EditPlan newTime(const EventPlace& event, int clockSeconds) const;
  [[nodiscard]] EditPlan change(const EventPlace& event, int clockSeconds, const Counted& counted) const;
  // A clock that does not fit there puts the event where it does.
  [[nodiscard]] EditPlan insertion(const EventPlace& at, Where where, int clockSeconds,
                                   const Counted& counted) const;
  // A forgotten substitution, at the clock of the event `at`.
  [[nodiscard]] EditPlan substitution(const EventPlace& at, Where where, const OnCourt& out,
                                      const OnCourt& in) const;
  // Others are on court from a stop on. Not possible where it says so already.
  [[nodiscard]] EditPlan newLists(const EventPlace& stop, const OnCourt& onCourt) const;

 private:
  [[nodiscard]] bool isClock(int period, int clockSeconds) const;
  // Empty: no such player or kind, or an event of which nobody knows more.
  [[nodiscard]] std::string textOf(const Counted& counted, const GameEvent* old = nullptr) const;
  [[nodiscard]] std::string keyOfNew(int number) const; // of the new events of a plan, from 0

  const LiveLog& m_log;
};

} // namespace hooptab
