#include "recording/StartingFive.h"

#include "game/EventWords.h"
#include "storage/Placeholders.h"

#include <algorithm>
#include <bit>

namespace hooptab {

namespace {

int onCourtOf(const LiveGame& game, Side team) {
  return std::popcount(game.onCourt()[team]);
}

} // namespace

bool awaitsFive(const LiveGame& game, Side team) {
  return game.canRecord() && onCourtOf(game, team) == 0 && game.fullNumber(team) > 0 &&
         std::ranges::none_of(game.game().events, [](const GameEvent& event) {
           return event.isUnderstood && !event.isDeleted && event.code != EventCode::ARRET;
         });
}

int missingOfFive(const LiveGame& game, Side team) {
  return std::max(game.fullNumber(team) - onCourtOf(game, team), 0);
}

std::string missingWords(const LiveGame& game, const Texts& texts) {
  std::string words;
  for (const Side team : kSides) {
    const int missing = missingOfFive(game, team);
    if (missing == 0)
      continue;
    const Text text = onCourtOf(game, team) == 0 ? Text::NobodyOnCourt : Text::OfTheFiveMissing;
    words += words.empty() ? "" : "; ";
    words += withPlaceholders(texts.text(text), EventWords(game.game(), texts).team(team),
                              std::to_string(missing));
  }
  return words;
}

} // namespace hooptab
