#include "recording/OnCourt.h"

#include "game/GameEvent.h"
#include "storage/Module1.h"

#include <algorithm>
#include <bit>

namespace hooptab {

namespace {

unsigned entriesOf(std::string_view list, const Roster& roster) {
  unsigned entries = 0;
  for (const std::string_view jersey : Module1::countedJerseys(list)) {
    if (const int entry = roster.entryOfListed(jersey); entry > 0)
      entries |= 1U << entry;
  }
  return entries;
}

// Calls `visit(period, key, line)` for every event in the order of the game until it returns false.
template <class Visit>
void visitAll(const EventLines& lines, Visit visit) {
  for (const auto& [period, events] : lines) {
    for (const auto& [key, line] : events) {
      if (!visit(period, key, line))
        return;
    }
  }
}

struct Stop {
  OnCourt lists = {};
  bool isDeleted = false;
};

std::optional<Stop> stopOf(int period, const std::string& line, const Rosters& rosters) {
  const GameEvent event = GameEvent::parse(period, "1", line);
  if (!event.isUnderstood || event.code != EventCode::ARRET)
    return std::nullopt;
  return Stop{{entriesOf(event.onCourt(0), rosters[0]), entriesOf(event.onCourt(1), rosters[1])},
              event.isDeleted};
}

} // namespace

std::optional<OnCourt> onCourtOf(int period, const std::string& line, const Rosters& rosters) {
  const auto stop = stopOf(period, line, rosters);
  return stop && !stop->isDeleted ? std::optional(stop->lists) : std::nullopt;
}

// Those of the last stop before an event and so many from it on; of the whole period where it has no such
// event. Looked for from there back: the stop is near, the beginning of the game is not.
static OnCourt lastLists(const EventLines& lines, int period, const std::string& key, std::ptrdiff_t count,
                         const Rosters& rosters) {
  for (auto entry = std::make_reverse_iterator(lines.upper_bound(period)); entry != lines.rend(); ++entry) {
    const PeriodLines& events = entry->second;
    auto end = events.end();
    if (entry->first == period) {
      const auto event = std::ranges::find(events, key, &PeriodLines::value_type::first);
      end = event == events.end() ? event : event + count;
    }
    for (auto event = std::make_reverse_iterator(end); event != events.rend(); ++event) {
      if (const auto lists = onCourtOf(entry->first, event->second, rosters))
        return *lists;
    }
  }
  return {};
}

OnCourt inForce(const EventLines& lines, int period, const std::string& key, const Rosters& rosters) {
  return lastLists(lines, period, key, 1, rosters);
}

OnCourt inForceBefore(const EventLines& lines, int period, const std::string& key, const Rosters& rosters) {
  return lastLists(lines, period, key, 0, rosters);
}

bool isSubstitution(const EventLines& lines, int period, const std::string& key, const Rosters& rosters) {
  const std::string* line = findLine(lines, period, key);
  const auto stop = line == nullptr ? std::nullopt : stopOf(period, *line, rosters);
  return stop && stop->lists != inForceBefore(lines, period, key, rosters);
}

std::string listsText(const OnCourt& onCourt, const Rosters& rosters) {
  return rosters[0].listOf(onCourt[0]) + ',' + rosters[1].listOf(onCourt[1]);
}

std::string stopText(const OnCourt& onCourt, const Rosters& rosters) {
  return hooptab::stopText(rosters[0].listOf(onCourt[0]), rosters[1].listOf(onCourt[1]));
}

std::string withLists(const std::string& line, const OnCourt& lists, const Rosters& rosters) {
  constexpr std::string_view kCode = ",ARRET"; // behind which a line of others may have no lists at all
  const std::size_t behindCode = line.find(kCode) + kCode.size();
  std::size_t behindLists = behindCode; // and what a later version may have put there
  for (int team = 0; team < 2 && behindLists < line.size(); ++team)
    behindLists = std::min(line.find(',', behindLists + 1), line.size());
  return line.substr(0, behindCode) + ',' + listsText(lists, rosters) + line.substr(behindLists);
}

std::optional<EventPlace> eventBehind(const EventLines& lines, const EventPlace& event) {
  std::optional<EventPlace> behind;
  bool isFound = false;
  visitAll(lines, [&](int period, const std::string& key, const std::string&) {
    if (isFound)
      behind = {period, key};
    isFound = isFound || (period == event.period && key == event.key);
    return !behind;
  });
  return behind;
}

Carried carryOn(const EventLines& lines, const EventPlace& from, const OnCourt& before, const OnCourt& after,
                const Rosters& rosters) {
  OnCourt added = {after[0] & ~before[0], after[1] & ~before[1]};
  OnCourt removed = {before[0] & ~after[0], before[1] & ~after[1]};
  OnCourt previous = before; // as it was, before anything was carried on
  // Fewer than it makes are on court where one who has come already comes a second time.
  const auto difference = [&](std::size_t team) {
    return std::min(std::popcount(after[team]) - std::popcount(before[team]), 0);
  };
  bool isReached = false;
  Carried carried;
  visitAll(lines, [&](int period, const std::string& key, const std::string& line) {
    isReached = isReached || (period == from.period && key == from.key);
    const auto stop = isReached ? stopOf(period, line, rosters) : std::nullopt;
    if (!stop)
      return true;
    OnCourt changed = stop->lists;
    for (std::size_t team = 0; team < 2; ++team) {
      const unsigned changedAnyway = stop->lists[team] ^ previous[team];
      changed[team] = (changed[team] | (added[team] & ~changedAnyway)) & ~(removed[team] & ~changedAnyway);
      if (stop->isDeleted)
        continue;
      const unsigned comesTwice = added[team] & changedAnyway;
      added[team] &= ~changedAnyway;
      removed[team] &= ~changedAnyway;
      if (carried.conflict)
        continue;
      if (std::popcount(changed[team]) > kMostOnCourt)
        carried.conflict = {{period, key}, team, changed[team]};
      else if (comesTwice != 0 &&
               std::popcount(changed[team]) < std::popcount(stop->lists[team]) + difference(team))
        carried.conflict = {{period, key}, team, comesTwice, true};
    }
    if (!stop->isDeleted)
      previous = stop->lists;
    if (changed != stop->lists)
      carried.steps.push_back({EventChange::Kind::Replace, period, key, withLists(line, changed, rosters)});
    return (added[0] | added[1] | removed[0] | removed[1]) != 0;
  });
  return carried;
}

} // namespace hooptab
