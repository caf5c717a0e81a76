// One word and one abbreviation for a thing, in the program's texts and in its guide.
#include "game/Glossary.h"

#include "settings/Texts.h"

#include <cctype>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <regex>
#include <set>
#include <sstream>

namespace hooptab {
namespace {

const Texts& carried() {
  static const Texts texts;
  return texts;
}

struct Case {
  Language language;
  const char* guide;
  std::vector<const char*> others; // what people also say, and the program does not
};
const Case kCases[] = {
    {Language::English,
     "guide_en.md",
     {"lay-up", "lay up", "putback", "slam", "free shot", "foul shot", "giveaway", "interception",
      "block shot", "board", "dish", "bucket"}},
    {Language::French,
     "guide_fr.md",
     {"dunk", "layup", "double pas", "put-back", "tir franc", "coup franc", "interception", "revirement",
      "perte de balle", "perte de ballon", "ballon volé", "contré", "assistance", "claquette",
      "rebond d'attaque"}},
};

std::string guideText(const Case& of) {
  std::ifstream file(std::string(HOOPTAB_TESTS "/../docs/guide/") + of.guide);
  return {std::istreambuf_iterator<char>(file), {}};
}

std::string lower(std::string_view text) {
  std::string result(text);
  for (char& letter : result)
    letter = static_cast<char>(std::tolower(static_cast<unsigned char>(letter)));
  return result;
}

bool containsWord(const std::string& text, std::string_view beginning) {
  for (std::size_t at = text.find(beginning); at != std::string::npos; at = text.find(beginning, at + 1)) {
    if (at == 0 || std::isalpha(static_cast<unsigned char>(text[at - 1])) == 0)
      return true;
  }
  return false;
}

// "Off. Rebound" is "offensive rebound", shortened.
bool isShortFor(std::string_view given, std::string_view whole) {
  std::istringstream shortened(lower(given));
  std::istringstream words(lower(whole));
  std::string piece;
  std::string word;
  while (words >> word) {
    if (!(shortened >> piece) ||
        (piece.back() == '.' ? !word.starts_with(piece.substr(0, piece.size() - 1)) : piece != word))
      return false;
  }
  return !(shortened >> piece);
}

TEST(Glossary, HasOneWordForAThingInBothLanguages) {
  std::set<std::string_view> abbreviations;
  for (const auto& [language, guide, others] : kCases) {
    std::set<std::string_view> words;
    for (const Term& term : glossary()) {
      EXPECT_TRUE(words.insert(carried().text(term.words, language)).second) << term.abbreviation;
      EXPECT_EQ(termWords(term.abbreviation), term.words) << "an abbreviation stands for one thing";
    }
    EXPECT_FALSE(words.contains("")) << guide;
  }
}

TEST(Glossary, IsTheOneOfTheGuide) {
  const std::regex row(R"(\| \*\*([A-Za-z0-9]+)\*\* \| ([^|]+) \| [^|]+ \|)");
  for (const Case& of : kCases) {
    const std::string guide = guideText(of);
    std::set<Text> explained;
    for (std::sregex_iterator found(guide.begin(), guide.end(), row), end; found != end; ++found) {
      const std::string shown = (*found)[1];
      const std::string abbreviation =
          shown == carried().text(Text::Games, of.language) ? "G" : shown; // games
      const Text words = termWords(abbreviation);
      EXPECT_EQ(lower(carried().text(words, of.language)), std::string((*found)[2])) << shown;
      explained.insert(words);
    }
    for (const EventKind& kind : eventKinds()) {
      const bool isUsersOwn = kind.code == EventCode::SU1 || kind.code == EventCode::SU2;
      EXPECT_TRUE(isUsersOwn || explained.contains(kind.wordsText)) << kind.shortName;
    }
    for (const std::string_view other : {kTwoPointers, kThreePointers, std::string_view("TR")})
      EXPECT_TRUE(explained.contains(termWords(other))) << other;
  }
}

TEST(Glossary, IsKeptByEveryText) {
  const std::regex behind(
      R"(\b([A-Z][A-Za-z0-9]{1,2}) \(([^()=]+)\))"); // without "= +1", the hint for the mouse
  const std::regex before(R"(^\(([A-Z][A-Za-z0-9]{1,2})\) (.+)$)");
  for (const Case& of : kCases) {
    int compared = 0;
    std::string all = lower(guideText(of));
    for (const int number : carried().numbers()) {
      const std::string text(carried().text(static_cast<Text>(number), of.language));
      all += lower(text) + '\n';
      std::smatch pair;
      if (!std::regex_search(text, pair, behind) && !std::regex_search(text, pair, before))
        continue;
      if (const Text words = termWords(pair[1].str()); words != Text::None) {
        EXPECT_TRUE(isShortFor(pair[2].str(), carried().text(words, of.language))) << number << ": " << text;
        ++compared;
      }
    }
    EXPECT_GT(compared, 20);
    for (const char* other : of.others)
      EXPECT_FALSE(containsWord(all, other)) << other;
  }
}

} // namespace
} // namespace hooptab
