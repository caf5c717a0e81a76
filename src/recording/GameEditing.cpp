#include "recording/GameEditing.h"

#include "recording/GameClock.h"
#include "storage/Module1.h"

#include <algorithm>
#include <bit>

namespace hooptab {

namespace {

constexpr int kSecondsPerMinute = 60;

EditPlan planOf(Text text, const EventEdit& edit, bool isWhole) {
  return {text, isWhole && !edit.steps().empty(), edit.steps(), edit.back(), edit.conflict()};
}

} // namespace

EditPlan GameEditing::deletion(std::span<const EventPlace> events, bool isDeleted) const {
  const Rosters rosters = m_log.rosters();
  EventEdit edit(m_log.lines(), rosters);
  const auto mark = [&](const EventPlace& event) {
    const std::string* line = findLine(edit.lines(), event.period, event.key);
    if (line == nullptr || (isDeleted && closesPeriod(edit.lines(), event)))
      return false;
    const std::string marked = withDeletion(*line, isDeleted);
    if (marked == *line) // with another event
      return true;
    const auto start = startOfSubstitution(edit.lines(), event, rosters);
    return edit.takeCarryingOn({EventChange::Kind::Replace, event.period, event.key, marked}) &&
           (!start ||
            edit.take({EventChange::Kind::Replace, start->period, start->key,
                       withDeletion(*findLine(edit.lines(), start->period, start->key), isDeleted)}));
  };
  const bool isWhole = std::ranges::all_of(events, mark);
  return planOf(isDeleted ? Text::Deletion : Text::Restoring, edit, isWhole);
}

// A time of the period, as far as its length is known: that of an overtime is in no file.
bool GameEditing::isClock(int period, int clock) const {
  const GameDetails& details = m_log.game().details;
  if (details.minutesPerPeriod <= 0 || clock < 0)
    return clock == 0;
  const bool isRegular = period <= details.periods;
  return clock <= (isRegular ? details.minutesPerPeriod : kMostMinutes) * kSecondsPerMinute;
}

std::string GameEditing::textOf(const Counted& counted) const {
  const RosterPlayer* who =
      m_log.game().roster[static_cast<std::size_t>(counted.team)].player(counted.player);
  const EventKind* kind = kindOf(counted.kind);
  if (who == nullptr || kind == nullptr)
    return {};
  return eventText(counted.kind, counted.isMade, counted.team, who->jersey,
                   kind->hasPlace ? counted.place : std::nullopt);
}

std::string GameEditing::keyOfNew(int number) const {
  return std::to_string(m_log.nextNumber() + number);
}

EditPlan GameEditing::replacement(const EventPlace& event, int clock, const std::string& eventText) const {
  const std::string* line = findLine(m_log.lines(), event.period, event.key);
  if (line == nullptr)
    return {};
  const GameEvent old = GameEvent::parse(event.period, event.key, *line);
  const bool keepsTime = old.isUnderstood && old.clockSeconds == clock;
  if (!keepsTime && !isClock(event.period, clock))
    return {};
  const Rosters rosters = m_log.rosters();
  const auto start = startOfSubstitution(m_log.lines(), event, rosters);
  EventEdit edit(m_log.lines(), rosters);
  bool isWhole =
      edit.takeCarryingOn({EventChange::Kind::Replace, event.period, event.key,
                           withDeletion(Module1::clockText(clock) + eventText, line->starts_with('E'))});
  EventLines others = edit.lines();
  if (start)
    std::erase_if(others[event.period], [&](const auto& other) { return other.first == start->key; });
  const std::string behind = keyBehind(others, event);
  const std::string before =
      keepsTime ? behind : placeForClock(others, event.period, event.key, clock, behind);
  if (isWhole && before != behind)
    isWhole = edit.moveCarryingOn(event, before);
  if (!isWhole || !start)
    return planOf(Text::Edit, edit, isWhole);
  const std::string startLine = withDeletion(Module1::clockText(clock) + startText(), line->starts_with('E'));
  isWhole = edit.take({EventChange::Kind::Replace, start->period, start->key, startLine});
  if (isWhole && before != behind)
    isWhole = edit.take({EventChange::Kind::Move, start->period, start->key, {}, before});
  return planOf(Text::Edit, edit, isWhole);
}

EditPlan GameEditing::newTime(const EventPlace& event, int clock) const {
  const std::string* line = findLine(m_log.lines(), event.period, event.key);
  const std::size_t comma = line == nullptr ? std::string::npos : line->find(',');
  return comma == std::string::npos ? EditPlan{} : replacement(event, clock, line->substr(comma));
}

EditPlan GameEditing::change(const EventPlace& event, int clock, const Counted& counted) const {
  const std::string text = textOf(counted);
  return text.empty() ? EditPlan{} : replacement(event, clock, text);
}

EditPlan GameEditing::insertion(const EventPlace& at, Where where, int clock, const Counted& counted) const {
  const std::string text = textOf(counted);
  if (text.empty() || !isClock(at.period, clock) || findLine(m_log.lines(), at.period, at.key) == nullptr)
    return {};
  const std::string wanted = where == Where::Before ? at.key : keyBehind(m_log.lines(), at);
  const std::string before = placeForClock(m_log.lines(), at.period, {}, clock, wanted);
  EventEdit edit(m_log.lines(), m_log.rosters());
  const bool isWhole =
      edit.take({EventChange::Kind::Add, at.period, keyOfNew(0), Module1::clockText(clock) + text, before});
  return planOf(Text::Insertion, edit, isWhole);
}

// Where the clock runs it is started again at the same time, as by a substitution that is recorded.
EditPlan GameEditing::substitution(const EventPlace& at, Where where, const OnCourt& out,
                                   const OnCourt& in) const {
  const std::string* line = findLine(m_log.lines(), at.period, at.key);
  if (line == nullptr || (out == OnCourt{} && in == OnCourt{}))
    return {};
  const GameEvent event = GameEvent::parse(at.period, at.key, *line);
  if (!event.isUnderstood)
    return {};
  const Rosters rosters = m_log.rosters();
  OnCourt lists = where == Where::Before ? inForceBefore(m_log.lines(), at.period, at.key, rosters)
                                         : inForce(m_log.lines(), at.period, at.key, rosters);
  for (std::size_t team = 0; team < 2; ++team) {
    const unsigned twice = (out[team] & ~lists[team]) | (in[team] & lists[team]);
    lists[team] = (lists[team] & ~out[team]) | in[team];
    if (twice != 0)
      return {.text = Text::Insertion, .conflict = CourtConflict{at, team, twice, true}};
    if (std::popcount(lists[team]) > kMostOnCourt)
      return {.text = Text::Insertion, .conflict = CourtConflict{at, team, lists[team]}};
  }
  const std::string before = where == Where::Before ? at.key : keyBehind(m_log.lines(), at);
  const std::string clock = Module1::clockText(event.clockSeconds);
  const auto added = [&](int number, const std::string& text) {
    return EventChange{EventChange::Kind::Add, at.period, keyOfNew(number), clock + text, before};
  };
  const bool isRunning = isRunningBefore(m_log.lines(), at.period, before);
  EventEdit edit(m_log.lines(), rosters);
  bool isWhole = edit.takeCarryingOn(added(0, stopText(lists, rosters)));
  if (isWhole && isRunning)
    isWhole = edit.take(added(1, startText()));
  return planOf(Text::Insertion, edit, isWhole);
}

EditPlan GameEditing::newLists(const EventPlace& stop, const OnCourt& onCourt) const {
  const std::string* line = findLine(m_log.lines(), stop.period, stop.key);
  if (line == nullptr || !onCourtOf(stop.period, withDeletion(*line, false), m_log.rosters()))
    return {};
  const std::string lists = stopText(onCourt, m_log.rosters());
  if (line->ends_with(lists))
    return {};
  const GameEvent event = GameEvent::parse(stop.period, stop.key, *line);
  return replacement(stop, event.clockSeconds, lists);
}

} // namespace hooptab
