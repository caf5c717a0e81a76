// What the command lines of the two programs share: their language, and how wrong use is told in it.
#pragma once

#include "settings/Texts.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace hooptab {

[[nodiscard]] std::optional<Language> languageNamed(std::string_view name); // "en" or "fr"

// The language that the environment asks for: LC_ALL, LC_MESSAGES or LANG, the first that is set.
[[nodiscard]] Language environmentLanguage();

// What --lang says, wherever it stands, else `usual`: a command line that is not understood is told so in the
// language that it asks for.
[[nodiscard]] Language languageOf(const std::vector<std::string>& words, Language usual);

// Why a command line is not understood: a text and what stands in its places; no text where it is.
struct WrongUse {
  Text text = Text::None;
  std::string x = {};
  std::string y = {};
  explicit operator bool() const { return text != Text::None; }
};
[[nodiscard]] std::string inWords(const WrongUse& wrong, const Texts& texts);

} // namespace hooptab
