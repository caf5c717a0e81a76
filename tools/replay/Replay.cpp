#include "tools/replay/Replay.h"

#include "game/Side.h"
#include "settings/Settings.h"
#include "storage/Module1.h"

#include <chrono>
#include <cmath>

namespace hooptab {

namespace {

constexpr int kSecondsPerMinute = 60;
constexpr int kBuzzer = 5; // seconds after it in which nobody starts the clock

bool endsWith(const Game& game, EventCode code, int period, int clockSeconds) {
  if (game.events.size() == 0)
    return false;
  const GameEvent& last = game.events[game.events.size() - 1];
  return last.code == code && last.period == period && last.clockSeconds == clockSeconds;
}

bool isSame(const GameEvent& found, const GameEvent& wanted) {
  return found.isUnderstood && !found.isDeleted && found.code == wanted.code &&
         found.period == wanted.period && found.clockSeconds == wanted.clockSeconds &&
         found.isMade == wanted.isMade && found.player.team == wanted.player.team &&
         found.player.jersey == wanted.player.jersey;
}

std::string inWords(const GameEvent& event) {
  return "period " + std::to_string(event.period) + ": " + std::string(event.line);
}

} // namespace

Replay::Replay(const Game& original, const Table& table, Hand& hand)
    : m_original(original), m_table(table), m_hand(hand),
      m_zones(kFirstColours.twoPoints, kFirstColours.box, kFirstColours.threePoints),
      m_tally(m_counted, original.roster[Side::Visitor], original.roster[Side::Home]),
      m_clock(original.details.minutesPerPeriod * kSecondsPerMinute) {
  m_tally.clear();
}

void Replay::play() {
  m_table.program.setTime(m_now);
  m_hand.prepare();
  m_table.recorded.read();
  for (std::size_t index = 0; index < m_original.events.size(); ++index) {
    const GameEvent& event = m_original.events[index];
    if (!event.isUnderstood || event.isDeleted)
      continue;
    if (!goesOn())
      return;
    try {
      enter(event, index);
    } catch (const ReplayFailure& failure) {
      throw ReplayFailure("at " + inWords(event) + ": " + failure.what());
    }
    m_tally.apply(event, index);
    if (event.code == EventCode::ARRET && !m_isRunning)
      checkScoreboard();
  }
}

void Replay::enter(const GameEvent& event, std::size_t) {
  reach(event);
  if (event.code == EventCode::DEPART) {
    if (!m_isRunning && m_clock > 0)
      toggleClock();
  } else if (event.code == EventCode::ARRET) {
    stop(event);
  } else {
    record(event);
  }
  const int half = m_original.details.minutesPerPeriod * kSecondsPerMinute / 2;
  if (m_isRunning && m_clock < half)
    m_table.camera.take("period-" + std::to_string(m_period));
}

// --- Clock and periods

void Replay::reach(const GameEvent& event) {
  while (m_period < event.period)
    beginNextPeriod(event);
  if (m_isRunning && event.clockSeconds < m_clock)
    passTime(event.clockSeconds);
  else if (event.clockSeconds != m_clock)
    correctClock(event.clockSeconds);
  // Into what came after the buzzer one has to go back.
  if (m_isClosed && !event.isClock())
    returnToEndedPeriod();
}

void Replay::passTime(int untilClock) {
  m_now += m_clock - untilClock;
  m_clock = untilClock;
  m_table.program.setTime(m_now);
  if (m_clock > 0)
    return;
  m_table.recorded.waitUntil("the stop at the end of the period",
                             [&](const Game& game) { return endsWith(game, EventCode::ARRET, m_period, 0); });
  m_isRunning = false;
  m_isClosed = true;
  m_earliestStart = m_now + kBuzzer;
  buzzed();
}

void Replay::letTimePass(int seconds) {
  m_now += seconds;
  m_table.program.setTime(m_now);
}

void Replay::letBuzzerPass() {
  if (m_now < m_earliestStart)
    letTimePass(static_cast<int>(m_earliestStart - m_now));
}

// After a last period with equal scores: by itself, or at a key once its card has been seen.
bool Replay::overtimeIsAsked() {
  constexpr auto kSoon = std::chrono::seconds(2);
  const auto end = std::chrono::steady_clock::now() + kSoon;
  while (std::chrono::steady_clock::now() < end) {
    const Program::Place question = m_table.program.where("frmOVERTIME");
    if (question.isShown && question.isActive)
      return true;
    if (!question.isShown && m_table.program.isShown("picPERIODEND"))
      return false;
    std::this_thread::sleep_for(std::chrono::milliseconds(1));
  }
  return false;
}

void Replay::beginNextPeriod(const GameEvent& first) {
  if (m_clock > 0)
    throw ReplayFailure("the original leaves a period before its end");
  const Effort before = m_table.person.effort();
  letBuzzerPass();
  m_hand.clearQuestion();
  if (!m_isClosed) {
    m_hand.toggleClock(); // leaves the period that was returned to
    m_earliestStart = m_now + kBuzzer;
  }
  m_clock = m_original.details.minutesPerPeriod * kSecondsPerMinute;
  if (isLastRegular()) {
    if (!overtimeIsAsked()) {
      letBuzzerPass();
      m_hand.toggleClock();
    }
    if (m_period == m_original.details.periods) { // those that follow are as long as the first
      m_table.program.waitUntilActive("frmOVERTIME");
      m_table.camera.take("overtime");
      m_table.person.type(std::to_string(first.clockSeconds / kSecondsPerMinute));
      m_table.person.press("Return");
      m_table.program.waitUntilActive("frmLIVE");
    }
    m_clock = first.clockSeconds;
  }
  m_isClosed = false;
  ++m_period;
  const std::string clock = Module1::clockText(m_clock);
  waitUntil("the clock of the next period is shown",
            [&] { return m_table.program.text("lblTEMPS") == clock; });
  if (m_period == m_original.details.periods / 2 + 1)
    m_hand.switchSides();
  noteEffort("next period", before);
}

void Replay::returnToEndedPeriod() {
  const Effort before = m_table.person.effort();
  if (isLastRegular() && m_counted.points(Side::Visitor) == m_counted.points(Side::Home) &&
      overtimeIsAsked()) {
    m_table.person.press("Escape");
    m_table.program.waitUntilActive("frmLIVE");
  }
  m_table.program.waitUntilShown("cmdRETURN");
  m_hand.returnToEndedPeriod();
  m_table.program.waitUntilGone("cmdRETURN");
  m_isClosed = false;
  ++m_report.returns;
  noteEffort("return to an ended period", before);
}

void Replay::correctClock(int clockSeconds) {
  const Effort before = m_table.person.effort();
  const bool wasRunning = m_isRunning;
  if (wasRunning)
    toggleClock();
  for (int press = 0; press < 2; ++press)
    m_table.person.clickAt(m_table.program.where("lblTEMPS"));
  m_table.program.waitUntilShown("txtTEMPS");
  m_clock = clockSeconds;
  m_table.person.type(Module1::clockText(m_clock));
  m_table.person.press("Return");
  m_table.program.waitUntilGone("txtTEMPS");
  if (wasRunning)
    toggleClock();
  ++m_report.clockCorrections;
  noteEffort("clock set by hand", before);
}

void Replay::toggleClock() {
  const Effort before = m_table.person.effort();
  m_isRunning = !m_isRunning;
  if (m_isRunning) {
    letBuzzerPass();
    m_hand.clearQuestion();
  }
  m_hand.toggleClock();
  const EventCode code = m_isRunning ? EventCode::DEPART : EventCode::ARRET;
  m_table.recorded.waitUntil(m_isRunning ? "the start" : "the stop",
                             [&](const Game& game) { return endsWith(game, code, m_period, m_clock); });
  noteEffort(m_isRunning ? "start of the clock" : "stop of the clock", before);
}

// The original's lists are a substitution or a stop.
void Replay::stop(const GameEvent& event) {
  const Rosters rosters{m_original.roster[Side::Visitor], m_original.roster[Side::Home]};
  const OnCourt wanted = *onCourtOf(event, rosters);
  if (wanted == m_table.recorded.onCourt()) {
    if (m_isRunning)
      toggleClock();
    return;
  }
  if (m_isClosed)
    returnToEndedPeriod();
  const Effort before = m_table.person.effort();
  noteEffort(m_hand.substitute(wanted), before);
}

// The score as the window has it, when the clock stands; and the clock.
void Replay::checkScoreboard() {
  for (const Side team : kSides) {
    const std::string points = std::to_string(m_counted.points(team));
    if (const std::string shown = m_table.program.text("lblPTS" + std::to_string(numberOf(team)));
        shown != points)
      throw ReplayFailure("the score shown is " + shown + ", not " + points);
  }
  if (const std::string shown = m_table.program.text("lblTEMPS");
      !m_isClosed && shown != Module1::clockText(m_clock))
    throw ReplayFailure("the clock shown is " + shown);
}

// --- Shots and actions

void Replay::record(const GameEvent& event) {
  const std::size_t known = m_table.recorded.game().events.size();
  const Effort before = m_table.person.effort();
  const std::string how = m_hand.record(event);
  m_table.recorded.waitUntil(inWords(event), [&](const Game& game) { return game.events.size() > known; });
  const std::chrono::duration<double, std::milli> took =
      std::chrono::steady_clock::now() - m_table.person.lastPress();
  const GameEvent& found = m_table.recorded.game().events[m_table.recorded.game().events.size() - 1];
  if (m_table.recorded.game().events.size() != known + 1 || !isSame(found, event))
    throw ReplayFailure("recorded was " + inWords(found) + ", " +
                        std::to_string(m_table.recorded.game().events.size() - known) + " more than before");
  const Effort& now = m_table.person.effort();
  if (now.clicks == before.clicks + 1 && now.keys == before.keys)
    m_report.millisecondsToDisk.push_back(took.count());
  noteEffort(how, before);
  if (event.hasPlace && found.hasPlace)
    noteShot(event, found);
}

void Replay::noteShot(const GameEvent& wanted, const GameEvent& found) {
  const auto asked =
      wanted.code == EventCode::GF3 ? ZoneMap::Result::ThreePoints : ZoneMap::Result::TwoPoints;
  if (m_zones.shotAt({wanted.x, wanted.y}) != asked)
    ++m_report.shotsInWrongZone;
  m_report.displacements.push_back(std::hypot(found.x - wanted.x, found.y - wanted.y));
}

void Replay::noteEffort(const std::string& how, const Effort& before) {
  const Effort& now = m_table.person.effort();
  ReplayReport::Entry& entry = m_report.entered[how];
  ++entry.number;
  entry.effort.clicks += now.clicks - before.clicks;
  entry.effort.keys += now.keys - before.keys;
  entry.effort.travel += now.travel - before.travel;
}

void Replay::declareOver() {
  const Effort before = m_table.person.effort();
  if (!m_isClosed) {
    letBuzzerPass();
    m_hand.clearQuestion();
    m_hand.toggleClock();
    m_isClosed = true;
  }
  waitUntil("the game is decided", [&] { return m_table.program.text("cmdSTART") == "---"; });
  m_table.person.press("ctrl+g");
  m_table.program.waitUntilActive("frmGAMEOVER/cmd1");
  m_table.camera.take("game-over");
  m_table.person.press("Tab"); // from the notes to the button that closes
  m_table.person.press("space");
  m_table.recorded.waitUntil("the end of the game", [](const Game& game) { return game.details.isFinished; });
  m_table.program.waitUntilActive("frmLIVE");
  noteEffort("end of the game", before);
  m_table.camera.take("end");
}

} // namespace hooptab
