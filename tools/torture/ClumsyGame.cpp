#include "ClumsyGame.h"

#include "recording/Slot.h"

#include <algorithm>
#include <bit>
#include <iostream>

namespace hooptab {

namespace {

using namespace std::chrono_literals;

constexpr int kLateOfHundred = 60;   // ends of periods
constexpr int kHalvesOfHundred = 50; // substitutions while the clock runs
constexpr int kPausesOfHundred = 25; // fouls
constexpr int kUndoneOfHundred = 4;
constexpr auto kSettled = 500ms;
constexpr auto kBehindSlip = 150ms;

} // namespace

ClumsyGame::ClumsyGame(const Game& original, const hooptab::Table& table, ClumsyHand& hand, Dice& dice,
                       Screen& screen, const Amount& amount, SlipCounts& counts)
    : Replay(original, table, hand), m_hand(hand), m_dice(dice), m_screen(screen), m_amount(amount),
      m_counts(counts), m_occasions(original), m_meaning(original) {}

bool ClumsyGame::goesOn() {
  m_isCutShort = !m_amount.hasTime() && !m_isEntered;
  return !m_isCutShort;
}

bool ClumsyGame::stopForToday() {
  if (isRunning())
    toggleClock();
  return !m_isCutShort;
}

void ClumsyGame::enter(const GameEvent& event, std::size_t index) {
  m_index = index;
  const bool isSecond = m_isEntered;
  if (!isSecond)
    begin(choose(event, index));
  std::string failure;
  try {
    const auto wanted = substitutionAhead(event);
    if (m_slip == Slip::HalfSubstitution && wanted)
      substituteByHalves(event, *wanted);
    else if (!isStartBehindHalves(event))
      Replay::enter(event, index);
  } catch (const Unmended&) {
    throw;
  } catch (const ReplayFailure& problem) {
    failure = problem.what();
  }
  m_meaning.add(event);
  if (m_isPutOff && event.code == EventCode::DEPART)
    m_meaning.putOffLast(clock());
  m_isPutOff = false;
  if (m_slip == Slip::TwoFreeThrows && m_hand.hasSlipped() && !isSecond) {
    m_isEntered = true; // and judged with the second
    return;
  }
  judge(failure);
  if (event.code == EventCode::SPF && isRunning() && m_dice.chance(kPausesOfHundred))
    pauseByHeldSpace();
  if (!event.isClock() && !isClosed() && m_dice.chance(kUndoneOfHundred))
    undoTwice();
}

// Which came with the substitution, and while its second half was on the way the clock ran on.
bool ClumsyGame::isStartBehindHalves(const GameEvent& event) const {
  return event.code == EventCode::DEPART && isRunning() && event.period == period() &&
         event.clockSeconds > clock();
}

void ClumsyGame::record(const GameEvent& event) {
  if (m_isEntered)
    m_isEntered = false;
  else
    (void)m_hand.record(event);
}

// --- Slips

void ClumsyGame::begin(Slip slip) {
  m_slip = slip;
  m_screen.forget();
  m_hand.arm(slip);
}

// What the screen still tells of an earlier slip must not pass for a word about the next one.
Slip ClumsyGame::choose(const GameEvent& event, std::size_t index) {
  if (!m_screen.isQuiet())
    return Slip::None;
  return substitutionAhead(event) && m_dice.chance(kHalvesOfHundred) ? Slip::HalfSubstitution
                                                                     : m_occasions.choose(index, m_dice);
}

// Who shall stand on court, where some come and as many go one by one while the clock runs.
std::optional<OnCourt> ClumsyGame::substitutionAhead(const GameEvent& event) const {
  if (!isRunning() || event.period != period() || event.clockSeconds > clock() || event.clockSeconds < 2)
    return std::nullopt;
  return m_occasions.exchange(event, m_meaning.onCourt());
}

void ClumsyGame::substituteByHalves(const GameEvent& event, const OnCourt& wanted) {
  m_courtBefore = m_meaning.onCourt();
  passTime(event.clockSeconds);
  m_hand.beginSubstitution(m_courtBefore, wanted);
  if (const int pause = std::min(m_dice.between(1, 5), clock() - std::max(m_occasions.nextClock(m_index), 1));
      pause > 0)
    passTime(clock() - pause);
  m_hand.endSubstitution(m_courtBefore, wanted);
}

// A stop and a start at one moment change nothing.
void ClumsyGame::pauseByHeldSpace() {
  for (int toggle = 0; toggle < 2; ++toggle) {
    begin(m_screen.isQuiet() ? Slip::HeldSpace : Slip::None);
    std::string failure;
    try {
      toggleClock();
    } catch (const ReplayFailure& problem) {
      failure = problem.what();
    }
    judge(failure);
  }
}

// A turnover that nobody made, taken back once too often and then done again once.
void ClumsyGame::undoTwice() {
  if (!m_screen.isQuiet())
    return;
  std::vector<Slot> slots;
  for (const Slot slot : kSlots) {
    if (table().program.isShown(element("cmdBUTTO", slot.number())))
      slots.push_back(slot);
  }
  if (slots.empty())
    return;
  begin(Slip::DoubleUndo);
  ++m_counts.made[static_cast<std::size_t>(Slip::DoubleUndo)];
  const std::size_t known = table().recorded.game().events.size();
  std::string failure;
  try {
    m_hand.actByMistake(m_dice.oneOf(slots));
    table().recorded.waitUntil("the mistake", [&](const Game& game) { return game.events.size() > known; });
  } catch (const ReplayFailure& problem) {
    failure = problem.what();
  }
  Person& person = table().person;
  std::this_thread::sleep_for(m_dice.milliseconds(200, 600));
  person.press("ctrl+z");
  std::this_thread::sleep_until(person.lastPress() + m_dice.milliseconds(60, 180));
  person.press("ctrl+z");
  std::this_thread::sleep_for(m_dice.milliseconds(200, 400));
  m_screen.look();
  person.press("ctrl+y");
  std::this_thread::sleep_for(kBehindSlip);
  judge(failure);
}

// The clock has run out, and Space comes for the stop that it needs no more.
void ClumsyGame::buzzed() {
  if (m_occasions.periodGoesOnFrom(m_index) || !m_screen.isQuiet() || !m_dice.chance(kLateOfHundred))
    return;
  Program& program = table().program;
  const Slip before = m_slip;
  m_slip = Slip::LateSpace;
  ++m_counts.made[static_cast<std::size_t>(m_slip)];
  m_screen.forget();
  std::this_thread::sleep_for(m_dice.milliseconds(0, 600));
  letTimePass(m_dice.between(0, 1));
  const bool wasAsked = program.isShown("frmOVERTIME");
  m_hand.hitSpace();
  std::this_thread::sleep_for(kBehindSlip);
  m_screen.look();
  if (program.text("cmdSTART") == m_runningCaption) {
    tell("meant nothing behind 00:00, came the start of the next period");
    m_hand.toggleClock();
    waitUntil("the clock stands again", [&] { return program.text("cmdSTART") != m_runningCaption; });
  } else if (wasAsked && !program.isShown("frmOVERTIME")) {
    tell("meant nothing behind 00:00, came an overtime of some length");
    throw Unmended("an overtime that nobody has asked for");
  }
  m_slip = before;
}

// --- What came of it

Meaning::Difference ClumsyGame::difference() {
  table().recorded.read();
  return m_meaning.difference(table().recorded.game(), {period(), clock(), isRunning()});
}

Meaning::Difference ClumsyGame::settled() {
  const auto end = std::chrono::steady_clock::now() + kSettled;
  Meaning::Difference wrong = difference();
  while (wrong && std::chrono::steady_clock::now() < end) {
    std::this_thread::sleep_for(5ms);
    wrong = difference();
  }
  return wrong;
}

void ClumsyGame::judge(const std::string& failure) {
  const bool hasSlipped = m_hand.hasSlipped();
  m_hand.arm(Slip::None);
  if (hasSlipped) {
    ++m_counts.made[static_cast<std::size_t>(m_slip)];
    std::this_thread::sleep_for(kBehindSlip);
    m_screen.look();
  }
  if (isRunning())
    m_runningCaption = table().program.text("cmdSTART");
  const Meaning::Difference wrong = settled();
  if (!wrong) {
    if (!failure.empty())
      std::cerr << "the file is right, though: " << failure << '\n';
    return returnToWindow();
  }
  m_screen.look();
  if (!hasSlipped && m_slip != Slip::DoubleUndo)
    m_slip = Slip::None;
  tell(wrong.words + (failure.empty() ? "" : " (" + failure + ")"));
  mend();
}

void ClumsyGame::tell(const std::string& words) {
  const bool isSilent = m_screen.said().empty();
  ++(isSilent ? m_counts.silent : m_counts.said)[static_cast<std::size_t>(m_slip)];
  std::cout << (isSilent ? "SILENT" : "said") << ", " << nameOf(m_slip) << ", period " << period()
            << " clock " << clock() << ": " << words << (isSilent ? "" : " [" + m_screen.said() + "]")
            << std::endl;
}

// --- Bringing it right

void ClumsyGame::returnToWindow() {
  constexpr int kTries = 3;
  for (int tries = 0; tries < kTries && !table().program.where("frmLIVE").isActive; ++tries) {
    table().person.press("Escape");
    std::this_thread::sleep_for(300ms);
  }
}

void ClumsyGame::mend() {
  constexpr int kMostSteps = 14;
  constexpr int kMostClicks = 8; // of one substitution, each of which may be an action of its own
  returnToWindow();
  if (m_slip == Slip::HalfSubstitution) {
    for (int step = 0; step < kMostClicks && table().recorded.onCourt() != m_courtBefore; ++step)
      takeBack();
    m_meaning.putOffLast(clock()); // made once more, as a whole
    m_isPutOff = true;
  }
  for (int step = 0; step < kMostSteps; ++step) {
    const Meaning::Difference wrong = settled();
    if (!wrong)
      return;
    try {
      mendOnce(wrong);
    } catch (const Unmended&) {
      throw;
    } catch (const ReplayFailure& problem) {
      std::cerr << "while mending: " << problem.what() << '\n';
    }
    returnToWindow();
  }
  throw Unmended("cannot be mended: " + difference().words);
}

void ClumsyGame::mendOnce(const Meaning::Difference& wrong) {
  using Kind = Meaning::Difference::Kind;
  switch (wrong.kind) {
  case Kind::None: return;
  case Kind::Wrong: return takeBack();
  case Kind::Clock: m_hand.clearQuestion(); return m_hand.toggleClock();
  case Kind::Lists: (void)m_hand.substitute(m_meaning.onCourt()); return;
  case Kind::Missing:
    if (wrong.missing->period != period() || wrong.missing->clockSeconds != clock())
      throw Unmended("lost and of another time: " + wrong.words);
    (void)m_hand.record(*wrong.missing);
    return;
  case Kind::Seconds: throw Unmended("seconds are lost: " + wrong.words);
  }
}

// Until it shows in the file, if it does.
void ClumsyGame::takeBack() {
  const auto lines = [this] {
    table().recorded.read();
    std::string all;
    for (const GameEvent& event : table().recorded.game().events)
      all.append(event.line).push_back('\n');
    return all;
  };
  const std::string before = lines();
  table().person.press("ctrl+z");
  const auto end = std::chrono::steady_clock::now() + kSettled;
  while (lines() == before && std::chrono::steady_clock::now() < end)
    std::this_thread::sleep_for(5ms);
}

} // namespace hooptab
