// Which key of the external keypad does what: one entry for each action, with the text that is stored for it.
// Also the letters of the main keyboard that stand for the same actions on a keyboard without a keypad. Keeps
// and checks; what the keys then do is the recorder's.
#pragma once

#include "settings/Settings.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace hooptab {

// In the order of kKeypadKeys.
enum class KeypadAction : std::uint8_t {
  CLOCK,
  OK0,
  OK1,
  CLR,
  PF,
  TF,
  BS,
  ST,
  DR,
  OR,
  TO,
  A,
  IN,
  OUT,
  All,
  U1,
  U2
};
inline constexpr std::size_t kKeypadActions = kKeypadKeys.size();

struct KeypadActionWords {
  Text name = Text::None; // none where the key of the settings is the name: "PF"
  Text hint = Text::None;
};
[[nodiscard]] KeypadActionWords wordsOf(KeypadAction action);

class KeypadAssignment {
 public:
  KeypadAssignment() = default; // nothing is bound
  explicit KeypadAssignment(const KeypadKeyTexts& texts) : m_texts(texts) {}

  const KeypadKeyTexts& texts() const { return m_texts; }
  const std::string& text(KeypadAction action) const { return m_texts[static_cast<std::size_t>(action)]; }
  [[nodiscard]] int code(KeypadAction action) const; // 0: not bound
  void bind(KeypadAction action, int code);
  [[nodiscard]] std::optional<KeypadAction> actionOf(int code) const;
  [[nodiscard]] std::vector<KeypadAction> actionsOf(int code) const; // more than one: to be solved

  friend bool operator==(const KeypadAssignment&, const KeypadAssignment&) = default;

 private:
  KeypadKeyTexts m_texts;
};

// Letters, A to Z.
class LetterAssignment {
 public:
  // What a letter can stand for: the actions but the first four (which have keys of their own: Space, Enter,
  // Shift+Enter, Esc), then the miss.
  static constexpr std::size_t kFirst = 4;
  static constexpr std::size_t kMiss = kKeypadActions;
  static constexpr std::size_t kCount = kKeypadActions - kFirst + 1;

  LetterAssignment(); // as at first
  // From letters() of another; one that is no such text leaves what was there.
  bool take(std::string_view letters);
  [[nodiscard]] std::string letters() const { return m_letters; }

  char letter(std::size_t what) const { return m_letters[what - kFirst]; }
  void bind(std::size_t what, char letter) { m_letters[what - kFirst] = letter; }
  [[nodiscard]] std::optional<std::size_t> whatIs(int code) const;
  [[nodiscard]] bool isTwice(std::size_t what) const;

  friend bool operator==(const LetterAssignment&, const LetterAssignment&) = default;

 private:
  std::string m_letters; // one for each
};

// All that the user chooses about keys.
struct KeypadSetup {
  KeypadAssignment keys = KeypadAssignment(firstKeypadKeyTexts());
  LetterAssignment letters;
  bool flashes = true;
  bool sounds = true;

  // Every key means one thing, in both tables together.
  [[nodiscard]] bool isTwice(KeypadAction action) const;
  [[nodiscard]] bool isLetterTwice(std::size_t what) const;
  [[nodiscard]] bool canBeSaved() const;
  // Letters, flash and sound as one text for the file of the windows' memory; take() accepts any text.
  [[nodiscard]] std::string choices() const;
  void take(std::string_view choices);

  friend bool operator==(const KeypadSetup&, const KeypadSetup&) = default;
};

} // namespace hooptab
