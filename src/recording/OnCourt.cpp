#include "recording/OnCourt.h"

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

} // namespace

bool isStop(const GameEvent& event) {
  return event.isUnderstood && event.code == EventCode::ARRET;
}

OnCourt listsOf(const GameEvent& stop, const Rosters& rosters) {
  return {entriesOf(stop.onCourt(Side::Visitor), rosters[Side::Visitor]),
          entriesOf(stop.onCourt(Side::Home), rosters[Side::Home])};
}

std::optional<OnCourt> onCourtOf(const GameEvent& event, const Rosters& rosters) {
  return isStop(event) && !event.isDeleted ? std::optional(listsOf(event, rosters)) : std::nullopt;
}

// Those of the last stop before a place. Looked for from there back: the stop is near, the beginning of the
// game is not.
static OnCourt lastLists(const EventList& events, std::size_t before, const Rosters& rosters) {
  for (auto event = events.begin() + static_cast<std::ptrdiff_t>(before); event != events.begin();) {
    if (const auto lists = onCourtOf(*--event, rosters))
      return *lists;
  }
  return {};
}

OnCourt inForce(const EventList& events, int period, std::string_view key, const Rosters& rosters) {
  const auto event = events.indexOf(period, key);
  return lastLists(events, event ? *event + 1 : events.endOfPeriod(period), rosters);
}

OnCourt inForceBefore(const EventList& events, int period, std::string_view key, const Rosters& rosters) {
  return lastLists(events, events.indexOf(period, key).value_or(events.endOfPeriod(period)), rosters);
}

bool isSubstitution(const EventList& events, int period, std::string_view key, const Rosters& rosters) {
  const auto event = events.indexOf(period, key);
  return event && isStop(events[*event]) &&
         listsOf(events[*event], rosters) != lastLists(events, *event, rosters);
}

std::string listsText(const OnCourt& onCourt, const Rosters& rosters) {
  return rosters[Side::Visitor].listOf(onCourt[Side::Visitor]) + ',' +
         rosters[Side::Home].listOf(onCourt[Side::Home]);
}

std::string stopText(const OnCourt& onCourt, const Rosters& rosters) {
  return hooptab::stopText(rosters[Side::Visitor].listOf(onCourt[Side::Visitor]),
                           rosters[Side::Home].listOf(onCourt[Side::Home]));
}

std::string withLists(std::string_view line, const OnCourt& lists, const Rosters& rosters) {
  constexpr std::string_view kCode = ",ARRET"; // behind which a line of others may have no lists at all
  const std::size_t behindCode = line.find(kCode) + kCode.size();
  std::size_t behindLists = behindCode; // and what a later version may have put there
  for (std::size_t passed = 0; passed < kSides.size() && behindLists < line.size(); ++passed)
    behindLists = std::min(line.find(',', behindLists + 1), line.size());
  return std::string(line.substr(0, behindCode)) + ',' + listsText(lists, rosters) +
         std::string(line.substr(behindLists));
}

std::optional<EventPlace> eventBehind(const EventList& events, const EventPlace& event) {
  const auto index = events.indexOf(event);
  return !index || *index + 1 >= events.size() ? std::nullopt : std::optional(placeOf(events[*index + 1]));
}

Carried carryOn(const EventList& events, const EventPlace& from, const OnCourt& before, const OnCourt& after,
                const Rosters& rosters) {
  OnCourt added = {after[Side::Visitor] & ~before[Side::Visitor], after[Side::Home] & ~before[Side::Home]};
  OnCourt removed = {before[Side::Visitor] & ~after[Side::Visitor], before[Side::Home] & ~after[Side::Home]};
  OnCourt previous = before; // as it was, before anything was carried on
  // Fewer than it makes are on court where one who has come already comes a second time.
  const auto difference = [&](Side team) {
    return std::min(std::popcount(after[team]) - std::popcount(before[team]), 0);
  };
  Carried carried;
  for (std::size_t index = events.indexOf(from).value_or(events.size()); index < events.size(); ++index) {
    const GameEvent& event = events[index];
    if (!isStop(event))
      continue;
    const OnCourt lists = listsOf(event, rosters);
    OnCourt changed = lists;
    for (const Side team : kSides) {
      const unsigned changedAnyway = lists[team] ^ previous[team];
      changed[team] = (changed[team] | (added[team] & ~changedAnyway)) & ~(removed[team] & ~changedAnyway);
      if (event.isDeleted)
        continue;
      const unsigned comesTwice = added[team] & changedAnyway;
      added[team] &= ~changedAnyway;
      removed[team] &= ~changedAnyway;
      if (carried.conflict)
        continue;
      if (std::popcount(changed[team]) > kMostOnCourt)
        carried.conflict = {placeOf(event), team, changed[team]};
      else if (comesTwice != 0 &&
               std::popcount(changed[team]) < std::popcount(lists[team]) + difference(team))
        carried.conflict = {placeOf(event), team, comesTwice, true};
    }
    if (!event.isDeleted)
      previous = lists;
    if (changed != lists)
      carried.steps.push_back({EventChange::Kind::Replace, event.period, std::string(event.key),
                               withLists(event.whole(), changed, rosters)});
    if ((added[Side::Visitor] | added[Side::Home] | removed[Side::Visitor] | removed[Side::Home]) == 0)
      break;
  }
  return carried;
}

} // namespace hooptab
