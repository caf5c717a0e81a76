// What is changed and taken back in a live game: edits of what was recorded, undo and redo, a start of the
// clock that was a mistake, marks of doubt, accepted findings, and players who are added.
#include "recording/LiveGame.h"

#include "game/EventDetails.h"
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
  putOnCourt(inForce(game().events, kBehindAll, {}, m_log.rosters()));
  m_flow.decideAgain(isTied());
  return true;
}

// Takes an action's steps to the letter; only stops that came after it, which no action of the user made, are
// taken on by what has changed before them.
bool LiveGame::turn(const LiveAction& action, std::vector<EventChange>& inverse) {
  if (!canRecord())
    return false;
  const Rosters rosters = m_log.rosters();
  EventEdit edit(game().events, rosters);
  if (!std::ranges::all_of(action.steps, [&](const EventChange& step) { return edit.take(step); }))
    return false;
  const auto cameLater = [&](const GameEvent& event) {
    return event.number >= action.nextNumber && event.isUnderstood && !event.isDeleted &&
           event.code == EventCode::ARRET;
  };
  const auto later = std::ranges::find_if(game().events, cameLater);
  if (later != game().events.end()) {
    const EventPlace first = placeOf(*later);
    if (!edit.carryOn(first, inForceBefore(game().events, first.period, first.key, rosters)))
      return false;
  }
  if (!m_log.change(edit.steps()))
    return false;
  inverse = edit.back();
  putOnCourt(inForce(game().events, kBehindAll, {}, rosters));
  m_flow.decideAgain(isTied());
  return true;
}

// Where nothing of this session is left to be taken back: the last action that is not deleted. A stop that
// nobody can delete is passed over; behind a substitution that others build upon everything else stays.
void LiveGame::offerEarlier() {
  if (m_access == Access::Reading || m_history.toUndo() != nullptr)
    return;
  const EventList& events = game().events;
  for (auto event = events.rbegin(); event != events.rend(); ++event) {
    if (!event->isUnderstood || event->isDeleted)
      continue;
    const EventPlace place = placeOf(*event);
    const EventKind* kind = event->kind();
    if (kind == nullptr && !isSubstitution(game().events, place.period, place.key, m_log.rosters()))
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
  if (!canRecord() || m_pending)
    return std::nullopt;
  const auto events = game().events.ofPeriod(period());
  LiveAction action{.nextNumber = m_log.nextNumber()};
  for (auto place = events.rbegin(); place != events.rend(); ++place) {
    const GameEvent& event = *place;
    if (!event.isUnderstood || event.isDeleted)
      continue;
    if (action.start) { // this is the event before the start, which may be the half of a substitution
      if (startOfSubstitution(game().events, placeOf(event), m_log.rosters()) == action.event)
        return std::nullopt;
      break;
    }
    const bool isStart = event.code == EventCode::DEPART && m_starts.contains(event.number) &&
                         (m_history.toUndo() == nullptr || m_history.toUndo()->nextNumber <= event.number);
    const bool isPause = event.code == EventCode::ARRET && event.clockSeconds > 0 &&
                         !isSubstitution(game().events, period(), event.key, m_log.rosters());
    if (!isPause && !isStart)
      return std::nullopt;
    action.steps.insert(action.steps.begin(), replacement(placeOf(event), withDeletion(event.whole(), true)));
    if (!isStart)
      continue;
    action.event = placeOf(event);
    action.start = GameFlow::Stand{.clock = {}, .endedPeriod = m_starts.at(event.number)};
    action.start->clock.set(event.clockSeconds);
  }
  return action.start ? std::optional(std::move(action)) : std::nullopt;
}

// Doing it again lets the clock go on as if it had never been taken back.
bool LiveGame::takeStartBack(LiveAction action) {
  std::vector<EventChange> inverse;
  if (!turn(action, inverse))
    return false;
  const GameFlow::Stand went = m_flow.exchange(*action.start);
  action.start = GameFlow::Stand{went.clock, 0};
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
    (void)m_flow.exchange(*start);
    m_history.dropUndone();
  } else {
    m_history.redone(std::move(inverse), m_log.nextNumber());
  }
  return true;
}

// --- To be looked at again

std::optional<EventPlace> LiveGame::lastRecorded() const {
  const EventList& events = game().events;
  for (auto event = events.rbegin(); event != events.rend(); ++event) {
    EventPlace place = placeOf(*event);
    if (event->isUnderstood && !event->isDeleted &&
        (!event->isClock() || isSubstitution(game().events, place.period, place.key, m_log.rosters())))
      return place;
  }
  return std::nullopt;
}

bool LiveGame::setDoubtful(const EventPlace& event, bool isDoubtful) {
  writePending(); // which may change the line
  const GameEvent* found = game().events.find(event);
  if (found == nullptr || !canRecord())
    return false;
  const std::string line(found->whole());
  const std::string marked = withDetail(line, detail_key::kDoubtful, isDoubtful ? "1" : "");
  return marked != line && take({.text = Text::MarkOfDoubt,
                                 .isPossible = true,
                                 .steps = {replacement(event, marked)},
                                 .back = {replacement(event, line)}});
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

NewPlayer LiveGame::addPlayer(Side team, std::string_view jersey, std::string_view name) {
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
  putOnCourt(inForce(game().events, kBehindAll, {}, m_log.rosters())); // where lists named him already
  return added;
}

// Lists write 00 as 000 once there is a 0, too: those before would name the newcomer in his place.
bool LiveGame::keepListsMeaning(Side team, const RosterPlayer& added) {
  if (Roster::jerseyNumber(added.jersey) != 0)
    return false;
  const Roster& before = game().roster[team];
  Roster after = before;
  after.add(added);
  std::vector<EventChange> steps;
  for (const GameEvent& event : game().events) {
    if (!isStop(event))
      continue;
    const std::string_view list = event.onCourt(team);
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
    std::string whole(event.whole());
    whole.replace(static_cast<std::size_t>(list.data() - event.line.data()), list.size(), renamed);
    steps.push_back(replacement(placeOf(event), std::move(whole)));
  }
  return !steps.empty() && m_log.change(steps);
}

} // namespace hooptab
