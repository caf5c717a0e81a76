#include "game/Glossary.h"

#include "game/Statistics.h"

#include <algorithm>

namespace hooptab {

namespace {

constexpr Term kOtherTerms[] = {
    {kTwoPointers, Text::TwoPointer},
    {kThreePointers, Text::ThreePointer},
    {"No", Text::JerseyNumber},
    {"Name", Text::PlayerName},
    {"Pos", Text::PositionTip},
    {"G", Text::GamesPlayedTip},
    {"#", Text::RankTip},
    {"PosHist", Text::PositionsHeld},
};

} // namespace

std::vector<Term> glossary() {
  std::vector<Term> terms;
  for (const EventKind& kind : eventKinds())
    terms.push_back({kind.shortName, kind.wordsText});
  for (const Statistic& statistic : statistics()) {
    if (statistic.words != Text::None)
      terms.push_back({statistic.name, statistic.words});
  }
  terms.insert(terms.end(), std::begin(kOtherTerms), std::end(kOtherTerms));
  return terms;
}

Text termWords(std::string_view abbreviation) {
  const std::vector<Term> terms = glossary();
  const auto found = std::ranges::find(terms, abbreviation, &Term::abbreviation);
  return found == terms.end() ? Text::None : found->words;
}

} // namespace hooptab
