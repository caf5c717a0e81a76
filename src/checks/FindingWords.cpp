#include "checks/FindingWords.h"

#include "game/EventWords.h"
#include "game/PlayerLookup.h"
#include "storage/Placeholders.h"

namespace hooptab {

namespace {

// The team, and the player as far as he is known.
std::string whoOf(const Finding& finding, const Game& game, const Texts& texts) {
  const EventWords words(game, texts);
  std::string who(words.team(*finding.team));
  if (finding.jersey.empty())
    return who;
  const bool isKnown = findPlayer(game.roster[*finding.team], finding.jersey) != nullptr;
  const std::string player = isKnown ? words.player({finding.team, finding.jersey}) : finding.jersey;
  return player == who ? who : who + ' ' + player;
}

} // namespace

std::string wordsOf(const Finding& finding, const Game& game, const Texts& texts) {
  // A team or player comes first where there is one; what else is said of it then follows.
  const bool hasWho = finding.team.has_value();
  const std::string& found = hasWho && finding.found.empty() ? finding.subject : finding.found;
  return withPlaceholders(texts.text(static_cast<Text>(finding.kind)),
                          hasWho ? whoOf(finding, game, texts) : finding.subject, found, finding.wanted);
}

std::string countsText(const FindingSummary& summary, const Texts& texts) {
  std::string text;
  const auto add = [&](std::size_t count, Text which) {
    if (count > 0)
      text += (text.empty() ? "" : ", ") + texts.withPlaceholder(which, std::to_string(count));
  };
  add(summary.wrong, Text::CountWrong);
  add(summary.doubtful, Text::CountDoubtful);
  if (summary.wrong == 0)
    text = std::string(texts.text(Text::Good)) + (text.empty() ? "" : ", ") + text;
  return text;
}

} // namespace hooptab
