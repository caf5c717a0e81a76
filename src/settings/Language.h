// The languages of the program, one row each: whoever needs to know more of a language than its texts asks
// here.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace hooptab {

enum class Language : std::uint8_t { English, French };

struct LanguageFacts {
  Language language;
  std::string_view code;    // ISO 639-1: of --lang, of file names, of the system's own texts
  std::string_view webPage; // the key of the settings with the address of its pages
  int offset;               // between its texts' numbers and the English ones; as the settings keep it
  bool isZeroSingular;      // "0 partie"
};
// In the order of the enumeration.
inline constexpr std::array kLanguages = {
    LanguageFacts{Language::English, "en", "SITEEN", 0, false},
    LanguageFacts{Language::French, "fr", "SITEFR", 4000, true},
};
[[nodiscard]] constexpr std::size_t indexOf(Language language) {
  return static_cast<std::size_t>(language);
}
[[nodiscard]] constexpr const LanguageFacts& factsOf(Language language) {
  return kLanguages[indexOf(language)];
}
// The one that a switch goes to; behind the last the first.
[[nodiscard]] constexpr Language nextLanguage(Language language) {
  return kLanguages[(indexOf(language) + 1) % kLanguages.size()].language;
}
static_assert([] {
  for (std::size_t i = 0; i < kLanguages.size(); ++i) {
    if (indexOf(kLanguages[i].language) != i)
      return false;
  }
  return true;
}());

} // namespace hooptab
