#include "recording/EventEdit.h"

#include "game/PlayerLookup.h"

#include <algorithm>

namespace hooptab {

namespace {

using Kind = EventChange::Kind;

OnCourt inForceAtPlace(const EventList& events, int period, const std::string& before,
                       const Rosters& rosters) {
  return before.empty() ? inForce(events, period, {}, rosters)
                        : inForceBefore(events, period, before, rosters);
}

} // namespace

std::string keyBehind(const EventList& events, const EventPlace& event) {
  const auto behind = eventBehind(events, event);
  return behind && behind->period == event.period ? behind->key : std::string();
}

std::string withDeletion(std::string_view line, bool isDeleted) {
  if (line.starts_with('E') == isDeleted)
    return std::string(line);
  return isDeleted ? 'E' + std::string(line) : std::string(line.substr(1));
}

// A new event cannot leave the file again: it is taken back by its mark of deletion.
bool EventEdit::take(const EventChange& step) {
  const GameEvent* old = m_events.find(step.period, step.key);
  if ((old == nullptr) != (step.kind == Kind::Add))
    return false;
  EventChange inverse{Kind::Replace, step.period, step.key};
  switch (step.kind) {
  case Kind::Add: inverse.line = withDeletion(step.line, true); break;
  case Kind::Replace: inverse.line = old->whole(); break;
  case Kind::Move:
    inverse.kind = Kind::Move;
    inverse.before = keyBehind(m_events, {step.period, step.key});
    break;
  }
  if (!m_events.apply(step))
    return false;
  m_back.insert(m_back.begin(), std::move(inverse));
  m_steps.push_back(step);
  return true;
}

bool EventEdit::takeCarryingOn(const EventChange& step) {
  const OnCourt before = step.kind == Kind::Add
                             ? inForceAtPlace(m_events, step.period, step.before, m_rosters)
                             : inForce(m_events, step.period, step.key, m_rosters);
  if (!take(step))
    return false;
  m_conflict = tooMany(step);
  if (m_conflict)
    return false;
  const auto behind = eventBehind(m_events, {step.period, step.key});
  return !behind || carryOn(*behind, before);
}

// A deleted stop may have been carried on to six, and is restored.
std::optional<CourtConflict> EventEdit::tooMany(const EventChange& step) const {
  const GameEvent& event = *m_events.find(step.period, step.key);
  const auto lists = onCourtOf(event, m_rosters);
  if (!lists)
    return std::nullopt;
  for (const Side team : kSides) {
    if (playersOfList(event.onCourt(team), m_rosters[team]).size() > kMostOnCourt)
      return CourtConflict{placeOf(event), team, (*lists)[team]};
  }
  return std::nullopt;
}

bool EventEdit::carryOn(const EventPlace& from, const OnCourt& before) {
  const OnCourt after = inForceBefore(m_events, from.period, from.key, m_rosters);
  if (before == after)
    return true;
  const Carried carried = hooptab::carryOn(m_events, from, before, after, m_rosters);
  if (carried.conflict) {
    m_conflict = carried.conflict;
    return false;
  }
  return std::ranges::all_of(carried.steps, [this](const EventChange& step) { return take(step); });
}

bool EventEdit::moveCarryingOn(const EventPlace& event, const std::string& before) {
  const GameEvent* moved = m_events.find(event);
  if (moved == nullptr)
    return false;
  const EventChange move{Kind::Move, event.period, event.key, {}, before};
  const auto lists = onCourtOf(*moved, m_rosters);
  if (!lists)
    return take(move);

  const std::string whole(moved->whole());
  const OnCourt old = inForceBefore(m_events, event.period, event.key, m_rosters);
  if (!takeCarryingOn({Kind::Replace, event.period, event.key, withDeletion(whole, true)}) || !take(move))
    return false;
  OnCourt now = inForceBefore(m_events, event.period, event.key, m_rosters);
  for (const Side team : kSides)
    now[team] = (now[team] | ((*lists)[team] & ~old[team])) & ~(old[team] & ~(*lists)[team]);
  return takeCarryingOn({Kind::Replace, event.period, event.key, withLists(whole, now, m_rosters)});
}

std::string placeForClock(const EventList& events, const PlacedEvent& placed, int clockSeconds,
                          const std::string& before) {
  std::optional<int> previous; // clocks of the neighbours at the place asked for
  std::optional<int> next;
  bool isBehind = false;
  std::string behindEqual;
  std::string behindGreater; // the first event where no clock is greater
  bool isFirst = true;
  bool hasEqual = false;
  std::string* follower = nullptr; // gets the key of the event that comes next
  for (const GameEvent& event : events.ofPeriod(placed.event.period)) {
    isBehind = isBehind || (!before.empty() && event.key == before);
    if (event.key == placed.event.key || (placed.start && event.key == placed.start->key))
      continue;
    if (isFirst)
      behindGreater = event.key;
    isFirst = false;
    if (follower != nullptr)
      *follower = event.key;
    follower = nullptr;
    if (!event.isUnderstood || event.isDeleted)
      continue;
    if (!isBehind)
      previous = event.clockSeconds;
    else if (!next)
      next = event.clockSeconds;
    if (event.clockSeconds == clockSeconds) {
      hasEqual = true;
      behindEqual.clear();
      follower = &behindEqual;
    } else if (event.clockSeconds > clockSeconds) {
      behindGreater.clear();
      follower = &behindGreater;
    }
  }
  if (previous.value_or(clockSeconds) >= clockSeconds && next.value_or(clockSeconds) <= clockSeconds)
    return before;
  if (hasEqual)
    return behindEqual;
  return behindGreater;
}

bool isRunningBefore(const EventList& events, int period, const std::string& before) {
  bool isRunning = false;
  for (const GameEvent& event : events.ofPeriod(period)) {
    if (!before.empty() && event.key == before)
      break;
    if (event.isUnderstood && !event.isDeleted && event.isClock())
      isRunning = event.code == EventCode::DEPART;
  }
  return isRunning;
}

std::optional<EventPlace> startOfSubstitution(const EventList& events, const EventPlace& stop,
                                              const Rosters& rosters) {
  const auto index = events.indexOf(stop);
  if (!index || *index + 1 >= events.size())
    return std::nullopt;
  const std::string_view line = events[*index].whole();
  const GameEvent& start = events[*index + 1];
  if (start.period != stop.period ||
      start.whole() != std::string(line.substr(0, std::min(line.find(','), line.size()))) + startText() ||
      !isRunningBefore(events, stop.period, stop.key) ||
      !isSubstitution(events, stop.period, stop.key, rosters))
    return std::nullopt;
  return placeOf(start);
}

// Behind the last start: a stop there closes the time alone, unless one before it stands at the same clock.
bool closesPeriod(const EventList& events, const EventPlace& place) {
  std::vector<const GameEvent*> stops; // since the clock was started last
  for (const GameEvent& event : events.ofPeriod(place.period)) {
    if (!event.isUnderstood || event.isDeleted)
      continue;
    if (event.code == EventCode::DEPART)
      stops.clear();
    else if (isStop(event))
      stops.push_back(&event);
  }
  if (stops.empty() || stops.back()->key != place.key)
    return false;
  return stops.size() == 1 || stops[stops.size() - 2]->clockSeconds != stops.back()->clockSeconds;
}

} // namespace hooptab
