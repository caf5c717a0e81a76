#include "recording/ConflictWords.h"

#include "game/EventWords.h"
#include "storage/Placeholders.h"

namespace hooptab {

std::string placeWords(const EventPlace& place, const Game& game, const Texts& texts) {
  const EventWords words(game, texts);
  const auto event = game.events.indexOf(place);
  return event ? words.clock(*event) + " (" + std::string(texts.text(Text::Period)) + ' ' +
                     words.periodText(place.period) + ')'
               : std::string();
}

std::string wordsOf(const CourtConflict& conflict, const Game& game, const Texts& texts) {
  const EventWords words(game, texts);
  std::string players;
  for (int entry = 1; entry <= Roster::kLargestEntry; ++entry) {
    const RosterPlayer* player = game.roster[conflict.team].player(entry);
    if (player != nullptr && (conflict.players >> entry & 1U) != 0)
      players += (players.empty() ? "" : ", ") + player->jersey;
  }
  return withPlaceholders(texts.text(conflict.isTwice ? Text::SubstitutedTwice : Text::SixOnCourt),
                          placeWords(conflict.event, game, texts), words.team(conflict.team), players);
}

} // namespace hooptab
