#include "recording/EventEdit.h"

#include "game/GameEvent.h"
#include "game/PlayerLookup.h"

#include <algorithm>

namespace hooptab {

namespace {

using Kind = EventChange::Kind;

GameEvent parsed(int period, const std::string& line) {
  return GameEvent::parse(period, "1", line);
}

bool isStop(const GameEvent& event) {
  return event.isUnderstood && event.code == EventCode::ARRET;
}

const PeriodLines& linesOf(const EventLines& lines, int period) {
  static const PeriodLines kNone;
  const auto found = lines.find(period);
  return found == lines.end() ? kNone : found->second;
}

OnCourt inForceAtPlace(const EventLines& lines, int period, const std::string& before,
                       const Rosters& rosters) {
  return before.empty() ? inForce(lines, period, {}, rosters) : inForceBefore(lines, period, before, rosters);
}

} // namespace

std::string keyBehind(const EventLines& lines, const EventPlace& event) {
  const PeriodLines& period = linesOf(lines, event.period);
  const auto found = std::ranges::find(period, event.key, &PeriodLines::value_type::first);
  return found == period.end() || found + 1 == period.end() ? std::string() : (found + 1)->first;
}

std::string withDeletion(const std::string& line, bool isDeleted) {
  if (line.starts_with('E') == isDeleted)
    return line;
  return isDeleted ? 'E' + line : line.substr(1);
}

// A new event cannot leave the file again: it is taken back by its mark of deletion.
bool EventEdit::take(const EventChange& step) {
  const std::string* old = findLine(m_lines, step.period, step.key);
  if ((old == nullptr) != (step.kind == Kind::Add))
    return false;
  EventChange inverse{Kind::Replace, step.period, step.key};
  switch (step.kind) {
  case Kind::Add: inverse.line = withDeletion(step.line, true); break;
  case Kind::Replace: inverse.line = *old; break;
  case Kind::Move:
    inverse.kind = Kind::Move;
    inverse.before = keyBehind(m_lines, {step.period, step.key});
    break;
  }
  if (!applyChange(step, m_lines))
    return false;
  m_back.insert(m_back.begin(), std::move(inverse));
  m_steps.push_back(step);
  return true;
}

bool EventEdit::takeCarryingOn(const EventChange& step) {
  const OnCourt before = step.kind == Kind::Add ? inForceAtPlace(m_lines, step.period, step.before, m_rosters)
                                                : inForce(m_lines, step.period, step.key, m_rosters);
  if (!take(step))
    return false;
  m_conflict = tooMany(step);
  if (m_conflict)
    return false;
  const auto behind = eventBehind(m_lines, {step.period, step.key});
  return !behind || carryOn(*behind, before);
}

// A deleted stop may have been carried on to six, and is restored.
std::optional<CourtConflict> EventEdit::tooMany(const EventChange& step) const {
  const auto lists = onCourtOf(step.period, step.line, m_rosters);
  for (std::size_t team = 0; lists && team < 2; ++team) {
    const GameEvent event = parsed(step.period, step.line);
    if (playersOfList(event.onCourt(team), m_rosters[team]).size() > kMostOnCourt)
      return CourtConflict{{step.period, step.key}, team, (*lists)[team]};
  }
  return std::nullopt;
}

bool EventEdit::carryOn(const EventPlace& from, const OnCourt& before) {
  const OnCourt after = inForceBefore(m_lines, from.period, from.key, m_rosters);
  if (before == after)
    return true;
  const Carried carried = hooptab::carryOn(m_lines, from, before, after, m_rosters);
  if (carried.conflict) {
    m_conflict = carried.conflict;
    return false;
  }
  return std::ranges::all_of(carried.steps, [this](const EventChange& step) { return take(step); });
}

bool EventEdit::moveCarryingOn(const EventPlace& event, const std::string& before) {
  const std::string* line = findLine(m_lines, event.period, event.key);
  if (line == nullptr)
    return false;
  const EventChange move{Kind::Move, event.period, event.key, {}, before};
  const auto lists = onCourtOf(event.period, *line, m_rosters);
  if (!lists)
    return take(move);

  const std::string whole = *line;
  const OnCourt old = inForceBefore(m_lines, event.period, event.key, m_rosters);
  if (!takeCarryingOn({Kind::Replace, event.period, event.key, withDeletion(whole, true)}) || !take(move))
    return false;
  OnCourt now = inForceBefore(m_lines, event.period, event.key, m_rosters);
  for (std::size_t team = 0; team < 2; ++team)
    now[team] = (now[team] | ((*lists)[team] & ~old[team])) & ~(old[team] & ~(*lists)[team]);
  return takeCarryingOn({Kind::Replace, event.period, event.key, withLists(whole, now, m_rosters)});
}

std::string placeForClock(const EventLines& lines, int period, const std::string& key, int clockSeconds,
                          const std::string& before) {
  std::optional<int> previous; // clocks of the neighbours at the place asked for
  std::optional<int> next;
  bool isBehind = false;
  std::string behindEqual;
  std::string behindGreater; // the first event where no clock is greater
  bool isFirst = true;
  bool hasEqual = false;
  std::string* follower = nullptr; // gets the key of the event that comes next
  for (const auto& [eventKey, line] : linesOf(lines, period)) {
    isBehind = isBehind || (!before.empty() && eventKey == before);
    if (eventKey == key)
      continue;
    if (isFirst)
      behindGreater = eventKey;
    isFirst = false;
    if (follower != nullptr)
      *follower = eventKey;
    follower = nullptr;
    const GameEvent event = parsed(period, line);
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

bool isRunningBefore(const EventLines& lines, int period, const std::string& before) {
  bool isRunning = false;
  for (const auto& [key, line] : linesOf(lines, period)) {
    if (!before.empty() && key == before)
      break;
    const GameEvent event = parsed(period, line);
    if (event.isUnderstood && !event.isDeleted && event.isClock())
      isRunning = event.code == EventCode::DEPART;
  }
  return isRunning;
}

std::optional<EventPlace> startOfSubstitution(const EventLines& lines, const EventPlace& stop,
                                              const Rosters& rosters) {
  const std::string* line = findLine(lines, stop.period, stop.key);
  const std::string next = keyBehind(lines, stop);
  const std::string* start = next.empty() ? nullptr : findLine(lines, stop.period, next);
  if (line == nullptr || start == nullptr ||
      *start != line->substr(0, std::min(line->find(','), line->size())) + startText() ||
      !isRunningBefore(lines, stop.period, stop.key) ||
      !isSubstitution(lines, stop.period, stop.key, rosters))
    return std::nullopt;
  return EventPlace{stop.period, next};
}

// Behind the last start: a stop there closes the time alone, unless one before it stands at the same clock.
bool closesPeriod(const EventLines& lines, const EventPlace& place) {
  std::vector<std::pair<std::string, int>> stops; // since the clock was started last: keys and clocks
  for (const auto& [key, line] : linesOf(lines, place.period)) {
    const GameEvent event = parsed(place.period, line);
    if (!event.isUnderstood || event.isDeleted)
      continue;
    if (event.code == EventCode::DEPART)
      stops.clear();
    else if (isStop(event))
      stops.emplace_back(key, event.clockSeconds);
  }
  if (stops.empty() || stops.back().first != place.key)
    return false;
  return stops.size() == 1 || stops[stops.size() - 2].second != stops.back().second;
}

} // namespace hooptab
