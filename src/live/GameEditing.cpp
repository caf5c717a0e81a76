#include "live/GameEditing.h"

#include "live/GameClock.h"
#include "storage/Module1.h"

#include <algorithm>
#include <bit>

namespace hooptab {

namespace {

constexpr int kSecondsPerMinute = 60;
constexpr int kDeletion = 1910;
constexpr int kRestoring = 1911;
constexpr int kEditing = 1912;
constexpr int kInsertion = 1965;

EditPlan planOf(int text, const EventEdit& edit, bool isWhole) {
  return {text, isWhole && !edit.steps().empty(), edit.steps(), edit.back(), edit.conflict()};
}

} // namespace

EditPlan GameEditing::deletion(std::span<const EventPlace> events, bool isDeleted) const {
  EventEdit edit(m_log.lines(), m_log.rosters());
  const auto mark = [&](const EventPlace& event) {
    const std::string* line = findLine(edit.lines(), event.period, event.key);
    return line != nullptr && !(isDeleted && closesPeriod(edit.lines(), event)) &&
           edit.takeCarryingOn(
               {EventChange::Kind::Replace, event.period, event.key, withDeletion(*line, isDeleted)});
  };
  const bool isWhole = std::ranges::all_of(events, mark);
  return planOf(isDeleted ? kDeletion : kRestoring, edit, isWhole);
}

// A time of the period, as far as its length is known: that of an overtime is in no file.
bool GameEditing::isClock(int period, int clock) const {
  const GameDetails& details = m_log.game().details;
  if (details.minutesPerPeriod <= 0 || clock < 0)
    return clock == 0;
  const bool isRegular = period <= details.periods;
  return clock <= (isRegular ? details.minutesPerPeriod : kMostOvertimeMinutes) * kSecondsPerMinute;
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
  if (line == nullptr || !isClock(event.period, clock))
    return {};
  EventEdit edit(m_log.lines(), m_log.rosters());
  bool isWhole =
      edit.takeCarryingOn({EventChange::Kind::Replace, event.period, event.key,
                           withDeletion(Module1::clockText(clock) + eventText, line->starts_with('E'))});
  const std::string behind = keyBehind(m_log.lines(), event);
  const std::string before = placeForClock(m_log.lines(), event.period, event.key, clock, behind);
  if (isWhole && before != behind)
    isWhole = edit.moveCarryingOn(event, before);
  return planOf(kEditing, edit, isWhole);
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
  return planOf(kInsertion, edit, isWhole);
}

// Where the clock runs it is started again at the same time, as by a substitution that is recorded.
EditPlan GameEditing::substitution(const EventPlace& at, Where where, const OnCourt& out,
                                   const OnCourt& in) const {
  const std::string* line = findLine(m_log.lines(), at.period, at.key);
  if (line == nullptr || (out == OnCourt{} && in == OnCourt{}))
    return {};
  const GameEvent event = GameEvent::parse(static_cast<std::uint8_t>(at.period), at.key, *line);
  if (!event.isUnderstood)
    return {};
  const Rosters rosters = m_log.rosters();
  OnCourt lists = where == Where::Before ? inForceBefore(m_log.lines(), at.period, at.key, rosters)
                                         : inForce(m_log.lines(), at.period, at.key, rosters);
  for (std::size_t team = 0; team < 2; ++team) {
    const bool isPossible = (out[team] & ~lists[team]) == 0 && (in[team] & lists[team]) == 0;
    lists[team] = (lists[team] & ~out[team]) | in[team];
    if (!isPossible || std::popcount(lists[team]) > kMostOnCourt)
      return {.text = kInsertion, .conflict = at};
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
  return planOf(kInsertion, edit, isWhole);
}

} // namespace hooptab
