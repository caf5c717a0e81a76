#include "game/Glossary.h"

#include <algorithm>

namespace hooptab {

namespace {

constexpr Term kOtherTerms[] = {
    {kTwoPointers, 2805}, {kThreePointers, 2806}, {"TR", 2131},  {"PTS", 1708},  {"rating", 1709},
    {"No", 1705},         {"Name", 1023},         {"Pos", 1707}, {"Time", 1706}, {"G", 2130},
    {"#", 2132},          {"PosHist", 2133},
};

} // namespace

std::vector<Term> glossary() {
  std::vector<Term> terms;
  for (const EventKind& kind : eventKinds())
    terms.push_back({kind.shortName, kind.wordsText});
  terms.insert(terms.end(), std::begin(kOtherTerms), std::end(kOtherTerms));
  return terms;
}

int termWords(std::string_view abbreviation) {
  const std::vector<Term> terms = glossary();
  const auto found = std::ranges::find(terms, abbreviation, &Term::abbreviation);
  return found == terms.end() ? 0 : found->words;
}

} // namespace hooptab
