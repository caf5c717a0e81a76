// Steps through text that should be UTF-8 and may not be (file names, for one), and shows it to terminals.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace hooptab {

struct CodePoint {
  std::uint32_t value = 0;
  std::string_view bytes;
  bool isValid = false; // else one byte that begins no character
};

// Whether a character commands what shows it, as a terminal's escapes do.
constexpr bool isControl(std::uint32_t codePoint) {
  return codePoint < 0x20 || (codePoint >= 0x7F && codePoint < 0xA0);
}

// Without characters that would command a terminal: each becomes "?". Valid UTF-8 in any case.
[[nodiscard]] std::string printable(std::string_view text);

// The first character of a text that is not empty; moves on behind it.
inline CodePoint takeCodePoint(std::string_view& text) {
  const auto byteAt = [&](std::size_t i) {
    return static_cast<std::uint32_t>(static_cast<unsigned char>(text[i]));
  };
  const std::uint32_t first = byteAt(0);
  const std::size_t length = first < 0x80   ? 1U
                             : first < 0xC2 ? 0U
                             : first < 0xE0 ? 2U
                             : first < 0xF0 ? 3U
                             : first < 0xF5 ? 4U
                                            : 0U;
  CodePoint result{first, text.substr(0, 1), length == 1};
  if (length > 1 && text.size() >= length) {
    std::uint32_t value = first & (0x7FU >> length);
    bool continues = true;
    for (std::size_t i = 1; i < length; ++i) {
      continues = continues && (byteAt(i) & 0xC0U) == 0x80U;
      value = (value << 6U) | (byteAt(i) & 0x3FU);
    }
    // Neither longer than need be, nor half of a surrogate pair, nor beyond the last character.
    constexpr std::uint32_t kSmallest[] = {0, 0, 0x80, 0x800, 0x10000};
    if (continues && value >= kSmallest[length] && value <= 0x10FFFF && (value < 0xD800 || value > 0xDFFF))
      result = {value, text.substr(0, length), true};
  }
  text.remove_prefix(result.bytes.size());
  return result;
}

} // namespace hooptab
