#include "recording/StartingFive.h"

#include "game/EventWords.h"
#include "storage/Placeholders.h"

#include <algorithm>
#include <bit>

namespace hooptab {

namespace {

int onCourtOf(const LiveGame& game, int team) {
  return std::popcount(game.onCourt()[static_cast<std::size_t>(team)]);
}

} // namespace

bool awaitsFive(const LiveGame& game, int team) {
  return game.canRecord() && onCourtOf(game, team) == 0 && game.fullNumber(team) > 0 &&
         std::ranges::none_of(game.game().events, [](const GameEvent& event) {
           return event.isUnderstood && !event.isDeleted && event.code != EventCode::ARRET;
         });
}

int missingOfFive(const LiveGame& game, int team) {
  return std::max(game.fullNumber(team) - onCourtOf(game, team), 0);
}

std::string missingWords(const LiveGame& game, const Texts& texts) {
  std::string words;
  for (int team = 0; team < 2; ++team) {
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
