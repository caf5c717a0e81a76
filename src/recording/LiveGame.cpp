#include "recording/LiveGame.h"

#include "game/Rules.h"
#include "recording/LiveFigures.h"
#include "storage/Module1.h"

#include <algorithm>
#include <bit>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <utility>

namespace hooptab {

namespace {

constexpr int kSecondsPerMinute = 60;
constexpr int kBehindAll = std::numeric_limits<int>::max(); // every period that a file can have

// The new events of these steps, marked as deleted.
std::vector<EventChange> deletionOf(const std::vector<EventChange>& steps) {
  std::vector<EventChange> deletion;
  for (const EventChange& step : steps)
    deletion.push_back(replacement({step.period, step.key}, withDeletion(step.line, true)));
  return deletion;
}

} // namespace

LiveGame::LiveGame(ProfileStore& store, TimeSource& time) : m_log(store), m_time(time), m_flow(time) {}

GameFileProblem LiveGame::open(const std::string& path, Access access) {
  if (const GameFileProblem problem = m_log.open(path); problem != GameFileProblem::None)
    return problem;
  m_access = access;
  if (access == Access::Recording)
    m_time.layOnUtc();
  m_history.clear();
  m_lastShot = {};
  m_lastAdded = {};
  m_wasLeftRunning = false;
  m_slots.clear();
  m_pending.reset();
  m_flow = GameFlow(m_time);
  m_starts.clear();
  offerEarlier();
  if (m_slots.keepsPlaces())
    comeAndGo();
  showAsLeft();
  return GameFileProblem::None;
}

ForeignHands LiveGame::takeForeignHands() {
  if (m_log.disk().hasForeignHands())
    writePending();
  ForeignHands hands = m_log.takeForeignHands();
  if (hands.isTouched) { // others may be on court, at other places of the roster
    putOnCourt(inForce(game().events, kBehindAll, {}, m_log.rosters()));
    m_flow.decideAgain(isTied());
  }
  return hands;
}

// The lists of the last stop, the clock of the last event; after a stop at 00:00 as after the close of the
// period.
void LiveGame::showAsLeft() {
  const GameEvent* last = nullptr;
  const GameEvent* lastOfPlay = nullptr; // what a team does may stand behind the stop that closes a period
  for (const GameEvent& event : game().events) {
    if (!event.isUnderstood || event.isDeleted)
      continue;
    last = &event;
    if (!event.isOfTeam())
      lastOfPlay = &event;
  }
  standIn(last == nullptr ? 1 : std::clamp(last->period, 1, kLastPeriod));
  putOnCourt(inForce(game().events, kBehindAll, {}, m_log.rosters()));
  if (last != nullptr)
    m_flow.setClock(last->clockSeconds);
  if (lastOfPlay != nullptr && lastOfPlay->period == last->period && lastOfPlay->code == EventCode::ARRET &&
      lastOfPlay->clockSeconds == 0 && hasTime())
    closePeriod();
  m_flow.unlock(); // that was long ago
  if (m_access == Access::Reading || game().details.isFinished) {
    m_flow.close(m_access == Access::Reading ? Phase::ReadOnly : Phase::Finished);
    return;
  }
  m_wasLeftRunning = hasTime() && isRunningBefore(game().events, period(), {});
  // A team that is its own one player stands on court from the beginning.
  const OnCourt before = onCourt();
  OnCourt whole = before;
  for (const Side team : kSides) {
    if (isTeamItself(game().roster[team]))
      whole[team] = 1U << 1U;
  }
  if (whole != before) {
    putOnCourt(whole);
    recordStop(std::nullopt); // nobody's action
  }
}

// Places that are kept follow from all who came and went, one after the other.
void LiveGame::comeAndGo() {
  for (const GameEvent& event : game().events) {
    if (const auto lists = onCourtOf(event, m_log.rosters()))
      putOnCourt(*lists);
  }
}

int LiveGame::fullLength() const {
  return hasTime() ? m_flow.length() : 0;
}

bool LiveGame::isHalfTime() const {
  const int periods = game().details.periods;
  return phase() == Phase::Stopped && periods % 2 == 0 && period() == periods / 2 + 1 &&
         std::ranges::none_of(game().events, [this](const GameEvent& event) {
           return event.period == period() && !event.isDeleted;
         });
}

// Of an overtime that has begun it is the highest clock seen in it: each may have had its own.
int LiveGame::lengthOf(int period) const {
  const GameDetails& details = game().details;
  if (period <= details.periods)
    return details.minutesPerPeriod * kSecondsPerMinute;
  int longest = 0;
  for (const GameEvent& event : game().events.ofPeriod(period)) {
    if (event.isUnderstood)
      longest = std::max(longest, event.clockSeconds);
  }
  const int minutes = details.overtimeMinutes > 0 ? details.overtimeMinutes : details.minutesPerPeriod;
  return longest > 0 ? longest : minutes * kSecondsPerMinute;
}

int LiveGame::clockSeconds() const {
  return hasTime() ? m_flow.seconds() : 0;
}

std::optional<std::int64_t> LiveGame::wallClock() const {
  const std::int64_t now = m_time.utcMilliseconds();
  return now > 0 ? std::optional(now) : std::nullopt;
}

std::string LiveGame::lineOf(const std::string& eventText) const {
  return Module1::clockText(clockSeconds()) + eventText;
}

EventChange LiveGame::added(const std::string& line) {
  return {EventChange::Kind::Add, period(), m_log.takeKey(), line};
}

// --- Clock and periods

void LiveGame::toggleClock() {
  if (phase() == Phase::Running)
    stop();
  else
    start();
}

void LiveGame::start() {
  if (!hasTime() || phase() != Phase::Stopped || startLock() > 0)
    return;
  if (isStopLost())
    recordStop(std::nullopt);
  m_wasLeftRunning = false;
  if (clockSeconds() == 0)
    return closePeriod();
  m_history.forgetStarts();
  std::vector<EventChange> steps;
  if (turnsArrow())
    steps.push_back(added(lineOf(teamEventText(EventCode::XAR, otherSide(*arrow())))));
  const int number = m_log.nextNumber();
  steps.push_back(added(lineOf(startText())));
  m_log.change(steps, wallClock());
  m_starts[number] = m_flow.start();
}

void LiveGame::stop() {
  if (phase() != Phase::Running)
    return;
  writePending();
  // A machine that slept, or a late tick, stops behind the horn.
  std::optional<std::int64_t> when = wallClock();
  if (when)
    *when -= 1000 * m_flow.secondsBeyondEnd();
  m_flow.stop();
  recordStop(when);
  if (clockSeconds() == 0)
    closePeriod();
}

void LiveGame::stopForClosing(std::int64_t now) {
  if (phase() != Phase::Running)
    return;
  stop();
  m_log.setDetails({{"QUITTE", std::to_string(m_log.nextNumber() - 1) + ' ' + std::to_string(now)}});
}

bool LiveGame::wasClosedInPlay() const {
  const EventList& events = game().events;
  const auto last = std::find_if(events.rbegin(), events.rend(), [](const GameEvent& event) {
    return event.isUnderstood && !event.isDeleted;
  });
  return phase() == Phase::Stopped && last != events.rend() && last->code == EventCode::ARRET &&
         last->clockSeconds > 0 && last->number == game().details.closedInPlay.event;
}

bool LiveGame::isStopLost() const {
  return m_wasLeftRunning && phase() == Phase::Stopped && isRunningBefore(game().events, period(), {});
}

bool LiveGame::settleStop(int clockSeconds) {
  if (!isStopLost() || clockSeconds < 0)
    return false;
  m_wasLeftRunning = false;
  m_flow.setClock(clockSeconds); // of an overtime, too, whose length may be in no file
  recordStop(std::nullopt);      // nobody knows when
  if (clockSeconds == 0)
    closePeriod();
  return true;
}

// Counts that differ from those of all events counted anew would be wrong ones on the screen, and nobody
// would see it: a build for development stops there. The events are on disk.
void LiveGame::checkCounts() const {
#ifndef NDEBUG
  if (const std::string difference = m_log.difference(); !difference.empty()) {
    std::fprintf(stderr, "counts of %s differ from its events: %s\n", game().path.c_str(),
                 difference.c_str());
    std::abort();
  }
#endif
}

void LiveGame::recordStop(std::optional<std::int64_t> when) {
  m_log.change({added(lineOf(stopText(onCourt(), m_log.rosters())))}, when);
  checkCounts();
}

void LiveGame::tick() {
  if (m_pending && m_time.seconds() - m_pending->since >= kLongestPending)
    writePending();
  if (phase() == Phase::Running && clockSeconds() == 0)
    stop();
}

bool LiveGame::setClock(int seconds) {
  if (!hasTime() || phase() != Phase::Stopped || seconds < 0 || seconds > fullLength())
    return false;
  m_history.forgetStarts();
  m_flow.setClock(seconds);
  return true;
}

bool LiveGame::setPeriod(int period) {
  if (phase() == Phase::Running || !canRecord() || period < 1 || period > kLastPeriod)
    return false;
  if (period == m_flow.period())
    return true;
  leavePeriod();
  m_history.forgetStarts();
  m_wasLeftRunning = false;
  m_flow.forgetEnd();
  standIn(period);
  for (const GameEvent& event : game().events.ofPeriod(period)) {
    if (event.isUnderstood && !event.isDeleted)
      m_flow.setClock(event.clockSeconds);
  }
  return true;
}

// A period is left with a stop at the clock shown, when its last event is none; one without events needs
// none.
void LiveGame::leavePeriod() {
  const auto events = game().events.ofPeriod(period());
  const auto last = std::find_if(events.rbegin(), events.rend(), [](const GameEvent& event) {
    return !event.whole().starts_with('E') && !event.isOfTeam();
  });
  if (hasTime() && last != events.rend() && !isStop(*last))
    recordStop(std::nullopt);
}

void LiveGame::standIn(int period) {
  const int length = lengthOf(period);
  m_flow.stand(period, length, hasTime() ? length : 0);
}

void LiveGame::closePeriod() {
  m_history.forgetStarts();
  const bool isLast = period() >= game().details.periods;
  m_flow.end(isLast, isTied());
  if (!isLast)
    standIn(period() + 1);
}

bool LiveGame::returnToEndedPeriod() {
  if (!canReturnToEndedPeriod() || phase() == Phase::Running || !canRecord())
    return false;
  m_history.forgetStarts();
  m_flow.returnToEnded(lengthOf(endedPeriod()));
  return true;
}

bool LiveGame::beginOvertime(int minutes, bool keepsFouls) {
  if (phase() != Phase::OvertimeAsked || minutes < 1 || minutes > kMostMinutes || period() >= kLastPeriod)
    return false;
  m_log.setDetails({{"KEEPBONUS", keepsFouls ? "1" : "0"}, {"DUREEPROL", std::to_string(minutes)}});
  m_flow.stand(period() + 1, minutes * kSecondsPerMinute, minutes * kSecondsPerMinute);
  m_flow.unlock(); // nobody answers by reflex
  return true;
}

void LiveGame::finish(const std::string& notes) {
  if (phase() == Phase::ReadOnly)
    return;
  stop();
  m_log.setDetails({{"TERMINE", "1"}, {"NOTES", notes}});
  m_flow.close(Phase::Finished);
}

void LiveGame::saveNotes(const std::string& notes) {
  if (phase() != Phase::ReadOnly)
    m_log.setDetails({{"NOTES", notes}});
}

void LiveGame::reopen() {
  if (phase() != Phase::Finished)
    return;
  m_log.setDetails({{"TERMINE", "0"}});
  showAsLeft();
}

bool LiveGame::setDetails(const std::vector<std::pair<std::string, std::string>>& keysAndValues) {
  if (phase() == Phase::ReadOnly)
    return false;
  m_log.setDetails(keysAndValues);
  return true;
}

void LiveGame::setTeamColour(Side team, std::uint32_t colour) {
  setDetails({{"EQUIPE" + std::to_string(numberOf(team)) + "COL", std::to_string(colour)}});
}

// --- Players

bool LiveGame::toggleOnCourt(Side team, int player) {
  if (game().roster[team].player(player) == nullptr)
    return false;
  OnCourt wanted = onCourt();
  wanted[team] ^= 1U << static_cast<unsigned>(player);
  return changeByClick(wanted);
}

bool LiveGame::takeAllOut(Side team) {
  OnCourt wanted = onCourt();
  wanted[team] = 0;
  return changeByClick(wanted);
}

bool LiveGame::putInSlot(Slot slot, int player) {
  if (playerIn(slot) > 0 || slotOf(slot.team(), player) || !toggleOnCourt(slot.team(), player))
    return false;
  if (m_slots.keepsPlaces())
    m_slots.exchange(*slotOf(slot.team(), player), slot);
  return true;
}

bool LiveGame::mayStand(const OnCourt& wanted) const {
  return canRecord() && std::popcount(wanted[Side::Visitor]) <= kMostOnCourt &&
         std::popcount(wanted[Side::Home]) <= kMostOnCourt;
}

bool LiveGame::changeByClick(const OnCourt& wanted) {
  if (phase() != Phase::Running)
    return setOnCourt(wanted);
  if (!mayStand(wanted))
    return false;
  if (!m_pending)
    m_pending = {onCourt(), clockSeconds(), m_time.seconds(), wallClock()};
  putOnCourt(wanted);
  return !isWhole(wanted) || writePending();
}

// In each team that changes five stand, or all who may: who has fouled out cannot come. What was clicked back
// is whole, too.
bool LiveGame::isWhole(const OnCourt& wanted) const {
  for (const Side team : kSides) {
    if (wanted[team] != m_pending->before[team] && std::popcount(wanted[team]) < fullNumber(team))
      return false;
  }
  return true;
}

int LiveGame::fullNumber(Side team) const {
  int canPlay = 0;
  for (int player = 1; player <= Roster::kLargestEntry; ++player)
    canPlay += game().roster[team].player(player) != nullptr && !LiveFigures(*this).isFouledOut(team, player)
                   ? 1
                   : 0;
  return std::min(kMostOnCourt, canPlay);
}

bool LiveGame::writePending() {
  if (!m_pending)
    return true;
  const Pending pending = *std::exchange(m_pending, std::nullopt);
  return onCourt() == pending.before || recordOnCourt(pending.clockSeconds, pending.wallClock);
}

bool LiveGame::setOnCourt(const OnCourt& wanted) {
  if (!mayStand(wanted))
    return false;
  if (wanted == onCourt())
    return writePending();
  const CourtSlots slots = m_slots;
  putOnCourt(wanted);
  if (m_pending ? writePending() : recordOnCourt(clockSeconds(), wallClock()))
    return true;
  m_slots = slots;
  return false;
}

// A substitution at that clock, with nothing recorded since but the start of the clock that belongs to it:
// what follows at once is part of it. A stop is none (its lists equal those before), nor is the game's first
// event.
const GameEvent* LiveGame::openSubstitution(int clockSeconds) const {
  auto events = game().events.ofPeriod(period());
  const std::string clock = Module1::clockText(clockSeconds);
  if (phase() == Phase::Running && !events.empty()) {
    if (events.back().whole() != clock + startText())
      return nullptr;
    events = events.first(events.size() - 1);
  }
  if (events.empty())
    return nullptr;
  const GameEvent& last = events.back();
  const auto lists = onCourtOf(last, m_log.rosters());
  if (!lists || last.key == "1" || !last.whole().starts_with(clock) ||
      *lists == inForceBefore(game().events, period(), last.key, m_log.rosters()))
    return nullptr;
  return &last;
}

bool LiveGame::recordOnCourt(int clockSeconds, std::optional<std::int64_t> wallClock) {
  if (const GameEvent* open = openSubstitution(clockSeconds)) {
    const EventPlace place = placeOf(*open);
    const std::string old(open->whole());
    return done(Text::Substitution, {replacement(place, withLists(old, onCourt(), m_log.rosters()))},
                {replacement(place, old)});
  }
  const std::string clock = Module1::clockText(clockSeconds);
  std::vector<EventChange> steps = {added(clock + stopText(onCourt(), m_log.rosters()))};
  if (phase() == Phase::Running)
    steps.push_back(added(clock + startText()));
  return done(Text::Substitution, steps, deletionOf(steps), wallClock);
}

// One action of the user, done by these steps and taken back by those.
bool LiveGame::done(Text text, const std::vector<EventChange>& steps, std::vector<EventChange> back,
                    std::optional<std::int64_t> wallClock) {
  if (!m_log.change(steps, wallClock))
    return false;
  m_history.add({text, {steps[0].period, steps[0].key}, std::move(back), m_log.nextNumber()});
  return true;
}

// --- What is counted

bool LiveGame::record(const std::string& eventText, Text text) {
  if (!canRecord())
    return false;
  writePending();
  const std::vector<EventChange> steps = {added(lineOf(eventText))};
  // While the clock runs it tells what the wall's would.
  if (!done(text, steps, deletionOf(steps), phase() == Phase::Running ? std::nullopt : wallClock()))
    return false;
  m_lastAdded = {steps[0].period, steps[0].key};
  m_flow.decideAgain(isTied());
  return true;
}

bool LiveGame::recordShot(Side team, int player, EventCode kind, bool isMade,
                          std::optional<std::pair<double, double>> place) {
  const EventKind* shot = kindOf(kind);
  const RosterPlayer* who = game().roster[team].player(player);
  if (shot == nullptr || !shot->isShot || who == nullptr)
    return false;
  std::string text = eventText(kind, isMade, team, who->jersey, place);
  if (kind == EventCode::GFT)
    text = withNumberOfThrow(std::move(text), {team, who->jersey});
  if (!record(text, shot->wordsText))
    return false;
  m_lastShot = m_lastAdded;
  return true;
}

bool LiveGame::recordAction(Side team, int player, EventCode kind) {
  const EventKind* action = kindOf(kind);
  const RosterPlayer* who = game().roster[team].player(player);
  if (action == nullptr || action->isShot || action->isOfTeam || who == nullptr)
    return false;
  std::string text = eventText(kind, false, team, who->jersey);
  if (kind == EventCode::SBS)
    text = withBlockedShot(std::move(text), team);
  return record(text, action->wordsText);
}

bool LiveGame::recordFollowUp(const EventPlace& event, Side team, int player, EventCode kind) {
  const EventPlace place = event; // which what is recorded replaces
  writePending();                 // before a number is given to what follows
  if (place.period == period())
    return recordAction(team, player, kind);
  const GameEvent* found = game().events.find(place);
  return found != nullptr && insertEvent(place, Where::Behind, found->clockSeconds,
                                         {.kind = kind, .team = team, .player = player});
}

} // namespace hooptab
