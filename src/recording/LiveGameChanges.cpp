// What is changed and taken back in a live game: edits of what was recorded, undo and redo, a start of the
// clock that was a mistake, marks of doubt, accepted findings, and players who are added.
#include "recording/LiveGame.h"

#include "storage/Module1.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace hooptab {

namespace {

constexpr int kBehindAll = std::numeric_limits<int>::max(); // every period that a file can have

} // namespace

bool LiveGame::take(const EditPlan& plan) {
  m_conflict = plan.conflict;
  if (!canRecord() || !plan.isPossible)
    return false;
  writePending();
  for (const EventChange& step : plan.steps) {
    if (step.kind == EventChange::Kind::Add)
      (void)m_log.takeKey(); // which the plan has named
  }
  if (!done(plan.text, plan.steps, plan.back))
    return false;
  putOnCourt(inForce(m_log.lines(), kBehindAll, {}, m_log.rosters()));
  decideAgain();
  return true;
}

// The score with which the game ended may be another now.
void LiveGame::decideAgain() {
  if (m_phase == Phase::OvertimeAsked || m_phase == Phase::Decided)
    m_phase = state().points(0) == state().points(1) ? Phase::OvertimeAsked : Phase::Decided;
}

// Takes an action's steps to the letter; only stops that came after it, which no action of the user made, are
// taken on by what has changed before them.
bool LiveGame::turn(const LiveAction& action, std::vector<EventChange>& inverse) {
  if (!canRecord())
    return false;
  const Rosters rosters = m_log.rosters();
  EventEdit edit(m_log.lines(), rosters);
  if (!std::ranges::all_of(action.steps, [&](const EventChange& step) { return edit.take(step); }))
    return false;
  const auto cameLater = [&](const GameEvent& event) {
    return event.number >= action.nextNumber && event.isUnderstood && !event.isDeleted &&
           event.code == EventCode::ARRET;
  };
  const auto later = std::ranges::find_if(game().events, cameLater);
  if (later != game().events.end()) {
    const EventPlace first{later->period, std::string(later->key)};
    if (!edit.carryOn(first, inForceBefore(m_log.lines(), first.period, first.key, rosters)))
      return false;
  }
  if (!m_log.change(edit.steps()))
    return false;
  inverse = edit.back();
  putOnCourt(inForce(m_log.lines(), kBehindAll, {}, rosters));
  decideAgain();
  return true;
}

// Where nothing of this session is left to be taken back: the last action that is not deleted. A stop that
// nobody can delete is passed over; behind a substitution that others build upon everything else stays.
void LiveGame::offerEarlier() {
  if (m_access == Access::Reading || m_history.toUndo() != nullptr)
    return;
  const auto events = game().events.events();
  for (auto event = events.rbegin(); event != events.rend(); ++event) {
    if (!event->isUnderstood || event->isDeleted)
      continue;
    const EventPlace place{event->period, std::string(event->key)};
    const EventKind* kind = event->kind();
    if (kind == nullptr && !isSubstitution(m_log.lines(), place.period, place.key, m_log.rosters()))
      continue;
    EditPlan plan = editing().deletion(std::span(&place, 1), true);
    if (plan.isPossible)
      m_history.addEarlier({kind == nullptr ? Text::Substitution : kind->wordsText, place,
                            std::move(plan.steps), m_log.nextNumber()});
    if (plan.isPossible || plan.conflict)
      return;
  }
}

std::optional<LiveAction> LiveGame::toUndo() const {
  if (auto start = startToTakeBack())
    return start;
  return m_history.toUndo() == nullptr ? std::nullopt : std::optional(*m_history.toUndo());
}

// Looked for in the lines, from the end: stops, and the start that is to go. What ended its period stays, and
// what was done after it is taken back before it.
std::optional<LiveAction> LiveGame::startToTakeBack() const {
  const auto found = m_log.lines().find(m_period);
  if (found == m_log.lines().end() || !canRecord() || m_pending)
    return std::nullopt;
  const PeriodLines& lines = found->second;
  LiveAction action{.nextNumber = m_log.nextNumber()};
  for (std::size_t line = lines.size(); line > 0; --line) {
    const auto& [key, text] = lines[line - 1];
    const GameEvent event = GameEvent::parse(m_period, key, text);
    if (!event.isUnderstood || event.isDeleted)
      continue;
    if (action.start) { // this is the event before the start, which may be the half of a substitution
      const EventPlace place{m_period, key};
      if (startOfSubstitution(m_log.lines(), place, m_log.rosters()) == action.event)
        return std::nullopt;
      break;
    }
    const bool isStart = event.code == EventCode::DEPART && m_starts.contains(event.number) &&
                         (m_history.toUndo() == nullptr || m_history.toUndo()->nextNumber <= event.number);
    const bool isPause = event.code == EventCode::ARRET && event.clockSeconds > 0 &&
                         !isSubstitution(m_log.lines(), m_period, key, m_log.rosters());
    if (!isPause && !isStart)
      return std::nullopt;
    action.steps.insert(action.steps.begin(), replacement(m_period, key, withDeletion(text, true)));
    if (!isStart)
      continue;
    action.event = {m_period, key};
    action.start = LiveAction::Start{.clock = {}, .endedPeriod = m_starts.at(event.number)};
    action.start->clock.set(event.clockSeconds);
  }
  return action.start ? std::optional(std::move(action)) : std::nullopt;
}

// Doing it again lets the clock go on as if it had never been taken back.
bool LiveGame::takeStartBack(LiveAction action) {
  std::vector<EventChange> inverse;
  if (!turn(action, inverse))
    return false;
  const LiveAction::Start before = std::exchange(*action.start, LiveAction::Start{m_clock, 0});
  m_clock = before.clock;
  m_endedPeriod = before.endedPeriod;
  m_phase = Phase::Stopped;
  action.steps = std::move(inverse);
  m_history.addUndone(std::move(action));
  return true;
}

bool LiveGame::undo() {
  writePending();
  if (auto start = startToTakeBack())
    return takeStartBack(std::move(*start));
  std::vector<EventChange> inverse;
  if (m_history.toUndo() == nullptr || !turn(*m_history.toUndo(), inverse))
    return false;
  m_history.undone(std::move(inverse), m_log.nextNumber());
  offerEarlier();
  return true;
}

bool LiveGame::redo() {
  writePending();
  std::vector<EventChange> inverse;
  if (m_history.toRedo() == nullptr || !turn(*m_history.toRedo(), inverse))
    return false;
  if (const auto start = m_history.toRedo()->start) {
    m_clock = start->clock;
    m_endedPeriod = start->endedPeriod;
    m_phase = m_clock.isRunning() ? Phase::Running : Phase::Stopped;
    m_history.dropUndone();
  } else {
    m_history.redone(std::move(inverse), m_log.nextNumber());
  }
  return true;
}

// --- To be looked at again

std::optional<EventPlace> LiveGame::lastRecorded() const {
  const auto events = game().events.events();
  for (auto event = events.rbegin(); event != events.rend(); ++event) {
    EventPlace place{event->period, std::string(event->key)};
    if (event->isUnderstood && !event->isDeleted &&
        (!event->isClock() || isSubstitution(m_log.lines(), place.period, place.key, m_log.rosters())))
      return place;
  }
  return std::nullopt;
}

bool LiveGame::setDoubtful(const EventPlace& event, bool isDoubtful) {
  writePending(); // which may change the line
  const std::string* line = findLine(m_log.lines(), event.period, event.key);
  if (line == nullptr || !canRecord())
    return false;
  const std::string marked = withDoubt(*line, isDoubtful);
  return marked != *line && take({.text = Text::MarkOfDoubt,
                                  .isPossible = true,
                                  .steps = {replacement(event.period, event.key, marked)},
                                  .back = {replacement(event.period, event.key, *line)}});
}

bool LiveGame::acceptFinding(const EventPlace& event, int finding) {
  const int number = Module1::wholeNumber(event.key);
  if (!canRecord() || number <= 0)
    return false;
  const auto known = game().accepted.find(number);
  std::vector<int> findings = known == game().accepted.end() ? std::vector<int>() : known->second;
  findings.push_back(finding);
  m_log.accept(number, findings);
  return true;
}

// --- Players who are added

NewPlayer LiveGame::addPlayer(int team, std::string_view jersey, std::string_view name) {
  NewPlayer added = NewPlayer::of(game(), team, jersey, name);
  if (!canRecord())
    added = {.problem = NewPlayer::Problem::CannotRecord, .team = team};
  if (!added.isAdded())
    return added;
  writePending();
  const bool areRenamed = keepListsMeaning(team, added.player);
  m_log.addPlayer(team, added.player);
  if (areRenamed) { // what was remembered names others now
    m_history.clear();
    offerEarlier();
  }
  putOnCourt(inForce(m_log.lines(), kBehindAll, {}, m_log.rosters())); // where lists named him already
  return added;
}

// Lists write 00 as 000 once there is a 0, too: those before would name the newcomer in his place.
bool LiveGame::keepListsMeaning(int team, const RosterPlayer& added) {
  if (Roster::jerseyNumber(added.jersey) != 0)
    return false;
  const Roster& before = game().roster[static_cast<std::size_t>(team)];
  Roster after = before;
  after.add(added);
  std::vector<EventChange> steps;
  for (const auto& [period, lines] : m_log.lines()) {
    for (const auto& [key, line] : lines) {
      const GameEvent event = GameEvent::parse(period, key, line);
      if (!event.isUnderstood || event.code != EventCode::ARRET)
        continue;
      const std::string_view list = event.onCourt(static_cast<std::size_t>(team));
      std::string renamed;
      bool isOther = false;
      for (const std::string_view jersey : Module1::JerseysOfList(list)) {
        const int entry = before.entryOfListed(jersey);
        const bool isMoved = entry > 0 && after.entryOfListed(jersey) != entry;
        renamed += renamed.empty() ? "IN-" : "-";
        renamed += isMoved ? after.listedJersey(before.player(entry)->jersey) : jersey;
        isOther = isOther || isMoved;
      }
      if (!isOther)
        continue;
      std::string whole = line;
      whole.replace(static_cast<std::size_t>(list.data() - line.data()), list.size(), renamed);
      steps.push_back(replacement(period, key, std::move(whole)));
    }
  }
  return !steps.empty() && m_log.change(steps);
}

} // namespace hooptab
