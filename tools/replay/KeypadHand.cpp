#include "tools/replay/KeypadHand.h"

#include "keypad/KeyCodes.h"
#include "recording/Slot.h"

#include <algorithm>
#include <array>
#include <chrono>

namespace hooptab {

namespace {

// Longer than the program holds a whole number back, lest a digit follow.
constexpr std::chrono::milliseconds kUntilTaken{600};

struct KeyName {
  int code;
  const char* name; // as the display has it
};
constexpr std::array kNames = {KeyName{13, "KP_Enter"},     KeyName{8, "BackSpace"},
                               KeyName{109, "KP_Subtract"}, KeyName{107, "KP_Add"},
                               KeyName{110, "KP_Decimal"},  KeyName{111, "KP_Divide"},
                               KeyName{106, "KP_Multiply"}};

struct ActionKey {
  EventCode code;
  KeypadAction action;
};
constexpr std::array kActions = {
    ActionKey{EventCode::SPF, KeypadAction::PF}, ActionKey{EventCode::STF, KeypadAction::TF},
    ActionKey{EventCode::SBS, KeypadAction::BS}, ActionKey{EventCode::SST, KeypadAction::ST},
    ActionKey{EventCode::SDR, KeypadAction::DR}, ActionKey{EventCode::SOR, KeypadAction::OR},
    ActionKey{EventCode::STO, KeypadAction::TO}, ActionKey{EventCode::SA, KeypadAction::A},
    ActionKey{EventCode::SU1, KeypadAction::U1}, ActionKey{EventCode::SU2, KeypadAction::U2}};

// By their digit, from 1.
constexpr std::array kShots = {EventCode::GFT, EventCode::GFG, EventCode::GF3, EventCode::GLG,
                               EventCode::GLD, EventCode::GPB, EventCode::GDK};

bool isFollowUp(EventCode code) {
  return code == EventCode::SA || code == EventCode::SOR || code == EventCode::SDR;
}

// Of those who come or go, each with the keys of action and team; two who are exchanged share both.
std::size_t keysFor(const std::vector<std::string>& numbers, std::size_t exchanged = 0) {
  std::size_t keys = 0;
  for (const std::string& number : numbers)
    keys += number.size() + 2;
  return keys - 2 * exchanged;
}

} // namespace

// A first start has the keypad on, and does not ask for rebounds.
void KeypadHand::prepare() {
  m_table.person.lockNumbers();
  m_table.person.press("F8");
}

// Its key is Enter, which belongs to the question while one is open.
void KeypadHand::pressClock() {
  clearQuestion();
  press(KeypadAction::CLOCK);
}

void KeypadHand::switchSides() {
  m_table.person.press("F9");
}

void KeypadHand::returnToEndedPeriod() {
  m_table.person.press("F3");
}

void KeypadHand::press(KeypadAction action) {
  const int code = m_keys.code(action);
  if (const auto digit = keys::digit(code, true))
    return type(std::to_string(*digit));
  const auto* const key = std::ranges::find(kNames, code, &KeyName::code);
  if (key == kNames.end())
    throw ReplayFailure("a key that no keypad has: " + m_keys.text(action));
  m_table.person.press(key->name);
}

void KeypadHand::confirm(Side team) {
  press(team == m_table.recorded.game().details.mainTeam ? KeypadAction::OK0 : KeypadAction::OK1);
}

void KeypadHand::type(const std::string& digits) {
  for (const char digit : digits)
    m_table.person.press(std::string("KP_") + digit);
}

void KeypadHand::clearQuestion() {
  if (!m_table.program.isShown("FollowUp"))
    return;
  press(KeypadAction::CLR);
  m_table.program.waitUntilGone("FollowUp");
  noteQuestionInTheWay();
}

// "9" for 09, where no other player has it.
std::string KeypadHand::numberOf(Side team, std::string_view jersey) const {
  const Roster& roster = m_table.recorded.game().roster[team];
  const std::size_t first = std::min(jersey.find_first_not_of('0'), jersey.size() - 1);
  const std::string_view number = jersey.substr(first);
  return std::string(roster.entryOf(number) == roster.entryOf(jersey) ? number : jersey);
}

std::vector<std::string> KeypadHand::numbersOf(Side team, unsigned entries) const {
  std::vector<std::string> numbers;
  for (const int entry : entriesOf(entries))
    numbers.push_back(numberOf(team, m_table.recorded.game().roster[team].player(entry)->jersey));
  return numbers;
}

std::string KeypadHand::record(const GameEvent& event) {
  if (event.isShot())
    return shoot(event);
  const bool isAssist = event.code == EventCode::SA;
  const std::string form = isAssist ? "Assist" : "frmRebound";
  if (isFollowUp(event.code) && m_table.program.isShown(form) && isOffered(event, form))
    return answer(event, form);
  clearQuestion();
  type(numberOf(*event.player.team, event.player.jersey));
  press(std::ranges::find(kActions, event.code, &ActionKey::code)->action);
  m_table.camera.take("typed");
  confirm(*event.player.team);
  if (!isFollowUp(event.code))
    return "action";
  return isAssist ? "assist, not asked for" : "rebound, not asked for";
}

// Begins with no digit: a question needs no clearing.
std::string KeypadHand::shoot(const GameEvent& event) {
  const auto* const kind = std::ranges::find(kShots, event.code);
  press(KeypadAction::A);
  if (!event.isMade)
    press(KeypadAction::A);
  type(numberOf(*event.player.team, event.player.jersey) + std::to_string(kind - kShots.begin() + 1));
  m_table.camera.take(event.isMade ? "typed-made" : "typed-missed");
  confirm(*event.player.team);
  return event.isMade ? "shot made" : "shot missed";
}

bool KeypadHand::isOffered(const GameEvent& event, const std::string& form) {
  const int first = event.code == EventCode::SDR ? Slot::kOfTeam : 0;
  const int count = event.code == EventCode::SA ? Slot::kOfTeam - 1 : Slot::kOfTeam;
  for (int index = first; index < first + count; ++index) {
    const std::string button = form + "/" + element("cmdJERSEY", index);
    if (m_table.program.isShown(button) && m_table.program.text(button) == event.player.jersey)
      return true;
  }
  return false;
}

// The team's key as well where the question is open still: a player of the other team has the number, or
// another number begins so.
std::string KeypadHand::answer(const GameEvent& event, const std::string& form) {
  const std::string number = numberOf(*event.player.team, event.player.jersey);
  type(number);
  Program& program = m_table.program;
  const auto isOpen = [&] { return program.isShown(form); };
  const auto shownFor = m_table.person.lastPress() + kUntilTaken;
  waitUntil("the number is taken, or stays", [&] {
    return !isOpen() ||
           (std::chrono::steady_clock::now() > shownFor && program.typedIn(form + "/") == number);
  });
  const bool isClear = !isOpen();
  if (!isClear) {
    m_table.camera.take("equal-numbers");
    confirm(*event.player.team);
    program.waitUntilGone("FollowUp");
  }
  const std::string asked = event.code == EventCode::SA ? "assist asked for" : "rebound asked for";
  return isClear ? asked : asked + ", with team";
}

// --- Substitutions

std::string KeypadHand::substitute(const OnCourt& wanted) {
  clearQuestion();
  const OnCourt before = m_table.recorded.onCourt();
  int coming = 0;
  for (const Side team : kSides) {
    const auto place = team;
    const auto all = numbersOf(team, wanted[place]);
    const auto leaving = numbersOf(team, before[place] & ~wanted[place]);
    const auto arriving = numbersOf(team, wanted[place] & ~before[place]);
    coming += static_cast<int>(arriving.size());
    const std::size_t exchanged = std::min(leaving.size(), arriving.size());
    if (!leaving.empty() && 2 + keysFor(all) < keysFor(leaving, exchanged) + keysFor(arriving)) {
      press(KeypadAction::All);
      confirm(team);
      move(team, all, KeypadAction::IN);
    } else {
      for (std::size_t pair = 0; pair < exchanged; ++pair)
        exchange(team, leaving[pair], arriving[pair]);
      move(team, {leaving.begin() + static_cast<std::ptrdiff_t>(exchanged), leaving.end()},
           KeypadAction::OUT);
      move(team, {arriving.begin() + static_cast<std::ptrdiff_t>(exchanged), arriving.end()},
           KeypadAction::IN);
    }
  }
  m_table.recorded.waitUntil("who stands on court",
                             [&](const Game&) { return m_table.recorded.onCourt() == wanted; });
  return "substitution of " + std::to_string(coming);
}

void KeypadHand::exchange(Side team, const std::string& leaving, const std::string& arriving) {
  type(leaving);
  press(KeypadAction::OUT);
  type(arriving);
  m_table.camera.take("exchange");
  confirm(team);
}

void KeypadHand::move(Side team, const std::vector<std::string>& numbers, KeypadAction action) {
  for (const std::string& number : numbers) {
    type(number);
    press(action);
    m_table.camera.take("substitution");
    confirm(team);
  }
}

} // namespace hooptab
