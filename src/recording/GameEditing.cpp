#include "recording/GameEditing.h"

#include "game/EventDetails.h"
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
  EventEdit edit(m_log.game().events, rosters);
  const auto mark = [&](const EventPlace& event) {
    const GameEvent* found = edit.events().find(event);
    if (found == nullptr || (isDeleted && closesPeriod(edit.events(), event)))
      return false;
    if (found->whole().starts_with('E') == isDeleted) // with another event
      return true;
    const auto start = startOfSubstitution(edit.events(), event, rosters);
    return edit.takeCarryingOn(hooptab::replacement(event, withDeletion(found->whole(), isDeleted))) &&
           (!start || edit.take(hooptab::replacement(
                          *start, withDeletion(edit.events().find(*start)->whole(), isDeleted))));
  };
  const bool isWhole = std::ranges::all_of(events, mark);
  return planOf(isDeleted ? Text::Deletion : Text::Restoring, edit, isWhole);
}

// A time of the period, as far as its length is known: each overtime may have its own.
bool GameEditing::isClock(int period, int clock) const {
  const GameDetails& details = m_log.game().details;
  if (details.minutesPerPeriod <= 0 || clock < 0)
    return clock == 0;
  const bool isRegular = period <= details.periods;
  return clock <= (isRegular ? details.minutesPerPeriod : kMostMinutes) * kSecondsPerMinute;
}

// Who jumps is not changed.
std::string GameEditing::textOf(const Counted& counted, const GameEvent* old) const {
  const EventKind* kind = kindOf(counted.kind);
  const bool isTimeOut = counted.kind == EventCode::XTO;
  const bool isJump = counted.kind == EventCode::XJB;
  if (kind == nullptr || (!counted.team && !isTimeOut) ||
      (isJump && (old == nullptr || old->code != EventCode::XJB)))
    return {};
  std::string text;
  if (isJump) {
    text = withDetail(old->whole().substr(old->whole().find(',')), detail_key::kDoubtful, {});
  } else if (kind->isOfTeam) {
    text = teamEventText(counted.kind, counted.team);
  } else {
    const RosterPlayer* who = m_log.game().roster[*counted.team].player(counted.player);
    if (who == nullptr)
      return {};
    text = eventText(counted.kind, counted.isMade, *counted.team, who->jersey, counted.place);
  }
  if (old != nullptr && !isJump)
    text = withDetailsOf(*old, text, counted.kind, counted.team);
  for (const auto& [key, value] : counted.details)
    text = withDetail(text, key, value);
  // What would be cut off is not written: the longest line has a mark of deletion and a clock in front.
  const std::string longest = "E00:00" + text;
  return counted.details.empty() || readablePart(longest).size() == longest.size() ? text : std::string();
}

std::string GameEditing::keyOfNew(int number) const {
  return std::to_string(m_log.nextNumber() + number);
}

EditPlan GameEditing::replacement(const EventPlace& event, int clock, const std::string& eventText) const {
  const GameEvent* old = m_log.game().events.find(event);
  if (old == nullptr)
    return {};
  const bool keepsTime = old->isUnderstood && old->clockSeconds == clock;
  const bool isDeleted = old->whole().starts_with('E');
  if (!keepsTime && !isClock(event.period, clock))
    return {};
  const Rosters rosters = m_log.rosters();
  const auto start = startOfSubstitution(m_log.game().events, event, rosters);
  EventEdit edit(m_log.game().events, rosters);
  bool isWhole = edit.takeCarryingOn(
      hooptab::replacement(event, withDeletion(Module1::clockText(clock) + eventText, isDeleted)));
  const std::string behind = keyBehind(edit.events(), start.value_or(event));
  const std::string before = keepsTime ? behind : placeForClock(edit.events(), {event, start}, clock, behind);
  if (isWhole && before != behind)
    isWhole = edit.moveCarryingOn(event, before);
  if (!isWhole || !start)
    return planOf(Text::Edit, edit, isWhole);
  isWhole = edit.take(
      hooptab::replacement(*start, withDeletion(Module1::clockText(clock) + startText(), isDeleted)));
  if (isWhole && before != behind)
    isWhole = edit.take({EventChange::Kind::Move, start->period, start->key, {}, before});
  return planOf(Text::Edit, edit, isWhole);
}

EditPlan GameEditing::newTime(const EventPlace& event, int clock) const {
  const GameEvent* found = m_log.game().events.find(event);
  const std::string_view line = found == nullptr ? std::string_view() : found->whole();
  const std::size_t comma = line.find(',');
  return comma == std::string_view::npos ? EditPlan{}
                                         : replacement(event, clock, std::string(line.substr(comma)));
}

EditPlan GameEditing::change(const EventPlace& event, int clock, const Counted& counted) const {
  const GameEvent* old = m_log.game().events.find(event);
  const std::string text = old == nullptr ? std::string() : textOf(counted, old);
  return text.empty() ? EditPlan{} : replacement(event, clock, text);
}

EditPlan GameEditing::insertion(const EventPlace& at, Where where, int clock, const Counted& counted) const {
  const std::string text = textOf(counted);
  if (text.empty() || !isClock(at.period, clock) || m_log.game().events.find(at) == nullptr)
    return {};
  const std::string wanted = where == Where::Before ? at.key : keyBehind(m_log.game().events, at);
  const std::string before =
      placeForClock(m_log.game().events, {{at.period, {}}, std::nullopt}, clock, wanted);
  EventEdit edit(m_log.game().events, m_log.rosters());
  const bool isWhole =
      edit.take({EventChange::Kind::Add, at.period, keyOfNew(0), Module1::clockText(clock) + text, before});
  return planOf(Text::Insertion, edit, isWhole);
}

// Where the clock runs it is started again at the same time, as by a substitution that is recorded.
EditPlan GameEditing::substitution(const EventPlace& at, Where where, const OnCourt& out,
                                   const OnCourt& in) const {
  const GameEvent* event = m_log.game().events.find(at);
  if (event == nullptr || !event->isUnderstood || (out == OnCourt{} && in == OnCourt{}))
    return {};
  const Rosters rosters = m_log.rosters();
  OnCourt lists = where == Where::Before ? inForceBefore(m_log.game().events, at.period, at.key, rosters)
                                         : inForce(m_log.game().events, at.period, at.key, rosters);
  for (const Side team : kSides) {
    const unsigned twice = (out[team] & ~lists[team]) | (in[team] & lists[team]);
    lists[team] = (lists[team] & ~out[team]) | in[team];
    if (twice != 0)
      return {.text = Text::Insertion, .conflict = CourtConflict{at, team, twice, true}};
    if (std::popcount(lists[team]) > kMostOnCourt)
      return {.text = Text::Insertion, .conflict = CourtConflict{at, team, lists[team]}};
  }
  const std::string before = where == Where::Before ? at.key : keyBehind(m_log.game().events, at);
  const std::string clock = Module1::clockText(event->clockSeconds);
  const auto added = [&](int number, const std::string& text) {
    return EventChange{EventChange::Kind::Add, at.period, keyOfNew(number), clock + text, before};
  };
  const bool isRunning = isRunningBefore(m_log.game().events, at.period, before);
  EventEdit edit(m_log.game().events, rosters);
  bool isWhole = edit.takeCarryingOn(added(0, stopText(lists, rosters)));
  if (isWhole && isRunning)
    isWhole = edit.take(added(1, startText()));
  return planOf(Text::Insertion, edit, isWhole);
}

EditPlan GameEditing::newLists(const EventPlace& stop, const OnCourt& onCourt) const {
  const GameEvent* event = m_log.game().events.find(stop);
  if (event == nullptr || !isStop(*event))
    return {};
  const std::string lists = stopText(onCourt, m_log.rosters());
  return event->whole().ends_with(lists) ? EditPlan{} : replacement(stop, event->clockSeconds, lists);
}

} // namespace hooptab
