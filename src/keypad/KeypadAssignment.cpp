#include "keypad/KeypadAssignment.h"

#include "keypad/KeyCodes.h"
#include "storage/Module1.h"

#include <algorithm>

namespace hooptab {

namespace {

constexpr KeypadActionWords kWords[] = {
    {Text::ClockKey, Text::ClockKeyTip},
    {Text::MainTeamKey, Text::MainConfirmTip},
    {Text::SecondaryTeamKey, Text::SecondaryConfirmTip},
    {Text::ClearKey, Text::ClearKeyTip},
    {Text::None, Text::PFKeyTip},
    {Text::None, Text::TFKeyTip},
    {Text::None, Text::BSKeyTip},
    {Text::None, Text::STKeyTip},
    {Text::None, Text::DRKeyTip},
    {Text::None, Text::ORKeyTip},
    {Text::None, Text::TOKeyTip},
    {Text::None, Text::AKeyTip},
    {Text::None, Text::InKeyTip},
    {Text::None, Text::OutKeyTip},
    {Text::None, Text::AllKeyTip},
    {Text::None, Text::U1KeyTip},
    {Text::None, Text::U2KeyTip},
};
static_assert(std::size(kWords) == kKeypadActions);

// Where the English word has no letter left, one that is near: V turnover, Z all, Y and W the user's own.
constexpr std::string_view kFirstLetters = "FTBSDOVAIEZYWX";
static_assert(kFirstLetters.size() == LetterAssignment::kCount);

} // namespace

KeypadActionWords wordsOf(KeypadAction action) {
  return kWords[static_cast<std::size_t>(action)];
}

int KeypadAssignment::code(KeypadAction action) const {
  return keys::code(text(action));
}

void KeypadAssignment::bind(KeypadAction action, int code) {
  m_texts[static_cast<std::size_t>(action)] = keys::text(code);
}

std::vector<KeypadAction> KeypadAssignment::actionsOf(int code) const {
  std::vector<KeypadAction> actions;
  for (std::size_t place = 0; place < kKeypadActions && code != 0; ++place) {
    const auto action = static_cast<KeypadAction>(place);
    if (this->code(action) == code)
      actions.push_back(action);
  }
  return actions;
}

// A file made by hand may have a key twice: the first action has it.
std::optional<KeypadAction> KeypadAssignment::actionOf(int code) const {
  const std::vector<KeypadAction> actions = actionsOf(code);
  return actions.empty() ? std::nullopt : std::optional(actions.front());
}

LetterAssignment::LetterAssignment() : m_letters(kFirstLetters) {}

bool LetterAssignment::take(std::string_view letters) {
  const bool isOne = letters.size() == kCount &&
                     std::ranges::all_of(letters, [](char letter) { return keys::isLetter(letter); });
  if (isOne)
    m_letters = letters;
  return isOne;
}

std::optional<std::size_t> LetterAssignment::whatIs(int code) const {
  const std::size_t place =
      keys::isLetter(code) ? m_letters.find(static_cast<char>(code)) : std::string::npos;
  return place == std::string::npos ? std::nullopt : std::optional(place + kFirst);
}

bool LetterAssignment::isTwice(std::size_t what) const {
  return std::ranges::count(m_letters, letter(what)) > 1;
}

bool KeypadSetup::isTwice(KeypadAction action) const {
  const int code = keys.code(action);
  return keys.actionsOf(code).size() > 1 || (code != 0 && letters.whatIs(code));
}

bool KeypadSetup::isLetterTwice(std::size_t what) const {
  return letters.isTwice(what) || keys.actionOf(letters.letter(what)).has_value();
}

bool KeypadSetup::canBeSaved() const {
  for (std::size_t place = 0; place < kKeypadActions; ++place) {
    if (isTwice(static_cast<KeypadAction>(place)))
      return false;
  }
  for (std::size_t what = LetterAssignment::kFirst; what <= LetterAssignment::kMiss; ++what) {
    if (isLetterTwice(what))
      return false;
  }
  return true;
}

std::string KeypadSetup::choices() const {
  return letters.letters() + ',' + (flashes ? '1' : '0') + ',' + (sounds ? '1' : '0');
}

void KeypadSetup::take(std::string_view choices) {
  if (!letters.take(Module1::field(choices, 1, ',')))
    return;
  flashes = Module1::field(choices, 2, ',') == "1";
  sounds = Module1::field(choices, 3, ',') == "1";
}

} // namespace hooptab
