// The keys of the external keypad by their virtual-key codes: how a code is stored and shown, which digit it
// types, and which codes one key of a keypad sends with Num Lock on and off. Knows no action.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace hooptab::keys {

inline constexpr int kBackspace = 8;
inline constexpr int kTab = 9;
inline constexpr int kEnter = 13;
inline constexpr int kEscape = 27;
inline constexpr int kSpace = 32;

// The stored form: "96-0-INS", and "65-" for a key without a label.
[[nodiscard]] std::string text(int code);
// The number before the first "-" of a stored text; 0, which is no key, where there is none.
[[nodiscard]] int code(std::string_view text);

[[nodiscard]] constexpr bool isMainDigit(int code) {
  return code >= '0' && code <= '9';
}
[[nodiscard]] constexpr bool isLetter(int code) {
  return code >= 'A' && code <= 'Z';
}
// What a key of the keypad or of the upper row types; with Num Lock off too.
[[nodiscard]] std::optional<int> digit(int code, bool isKeypad);
// What the same key of the keypad sends with Num Lock switched over; 0 when that is the same.
[[nodiscard]] int otherCode(int code);

} // namespace hooptab::keys
