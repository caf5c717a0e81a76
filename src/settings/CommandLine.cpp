#include "settings/CommandLine.h"

#include "storage/Placeholders.h"

#include <algorithm>
#include <cstdlib>

namespace hooptab {

std::optional<Language> languageNamed(std::string_view name) {
  const auto found = std::ranges::find(kLanguages, name, &LanguageFacts::code);
  return found == kLanguages.end() ? std::nullopt : std::optional(found->language);
}

Language environmentLanguage() {
  for (const char* name : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
    const char* const value = std::getenv(name);
    if (value != nullptr && *value != '\0')
      return languageNamed(std::string_view(value).substr(0, 2)).value_or(Language::English);
  }
  return Language::English;
}

Language languageOf(const std::vector<std::string>& words, Language usual) {
  constexpr std::string_view kOption = "--lang";
  Language language = usual;
  for (std::size_t i = 0; i < words.size() && words[i] != "--"; ++i) {
    const std::string_view word = words[i];
    if (word == kOption && i + 1 < words.size())
      language = languageNamed(words[i + 1]).value_or(language);
    else if (word.starts_with(kOption) && word.substr(kOption.size()).starts_with('='))
      language = languageNamed(word.substr(kOption.size() + 1)).value_or(language);
  }
  return language;
}

std::string inWords(const WrongUse& wrong, const Texts& texts) {
  return withPlaceholders(texts.text(wrong.text), wrong.x, wrong.y);
}

} // namespace hooptab
