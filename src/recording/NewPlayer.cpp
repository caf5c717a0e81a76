#include "recording/NewPlayer.h"

#include "game/EventWords.h"
#include "settings/ChoiceTexts.h"
#include "storage/Placeholders.h"
#include "storage/codepage.h"
#include "teams/TeamRecord.h"

#include <algorithm>

namespace hooptab {

namespace {

// As it comes back from the file.
std::string storedName(std::string_view name) {
  std::string text(name);
  std::ranges::replace_if(
      text, [](char letter) { return static_cast<unsigned char>(letter) < ' '; }, ' ');
  return std::string(Module1::trimmed(codepage::storedForm(text)));
}

} // namespace

NewPlayer NewPlayer::of(const Game& game, Side team, std::string_view jersey, std::string_view name) {
  const Roster& roster = game.roster[team];
  NewPlayer result{.team = team, .jersey = std::string(Module1::trimmed(jersey))};
  result.player = {result.jersey, kNoPosition, storedName(name)};
  const auto wears = [&](const RosterPlayer& other) {
    return other.jersey == result.jersey || Roster::areOneNumber(other.jersey, result.jersey);
  };
  const auto wearer = std::ranges::find_if(roster.players(), wears);
  if (!isJersey(result.jersey)) {
    result.problem = Problem::NoNumber;
  } else if (wearer != roster.players().end()) {
    result.problem = Problem::NumberTaken;
    result.wearer = Module1::trimmed(wearer->jersey + ' ' + wearer->name);
  } else if (roster.players().size() >= static_cast<std::size_t>(Roster::kLargestEntry)) {
    result.problem = Problem::RosterFull;
  } else if (!fitsInValue(playerValue(result.player))) {
    result.problem = Problem::NameTooLong;
  } else {
    result.entry = static_cast<int>(roster.players().size()) + 1;
  }
  return result;
}

std::string NewPlayer::words(const Game& game, const Texts& texts) const {
  const std::string_view abbreviation = EventWords(game, texts).team(team);
  switch (problem) {
  case Problem::None: {
    const std::string shown(Module1::trimmed(player.jersey + ' ' + player.name));
    return withPlaceholders(texts.text(Text::PlayerAdded), abbreviation, shown);
  }
  case Problem::CannotRecord: return std::string(texts.text(Text::CannotRecord));
  case Problem::NoNumber: return std::string(texts.text(Text::InvalidNumber));
  case Problem::NumberTaken: return withPlaceholders(texts.text(Text::NumberWorn), jersey, wearer);
  case Problem::RosterFull: return texts.withPlaceholder(Text::RosterFull, abbreviation);
  case Problem::NameTooLong: break;
  }
  return std::string(texts.text(Text::NameTooLong));
}

} // namespace hooptab
