#include "exchange/ForeignRoster.h"

#include "storage/Module1.h"

#include <algorithm>
#include <cctype>
#include <map>
#include <set>

namespace hooptab {

namespace {

// Whoever did anything, was on court, or has any figure in the file's own box.
std::vector<bool> thosePlaying(const ForeignGame& game, Side team) {
  const std::vector<ForeignPlayer>& players = game.teams[team].players;
  std::vector<bool> plays;
  for (const ForeignPlayer& player : players)
    plays.push_back(player.isStarter || std::ranges::any_of(player.official, [](const auto& number) {
                      return number.second.value != 0;
                    }));
  for (const ForeignEvent& event : game.events) {
    for (const Doer& doer : {event.doer, event.other}) {
      if (doer.team == team && doer.isPlayer())
        plays[static_cast<std::size_t>(doer.player)] = true;
    }
  }
  return plays;
}

// What an event's line can name: letters and digits; empty where there are none.
std::string usable(std::string_view jersey) {
  std::string text(Module1::trimmed(jersey));
  std::erase_if(text, [](char letter) {
    return !((letter >= '0' && letter <= '9') || (letter >= 'A' && letter <= 'Z') ||
             (letter >= 'a' && letter <= 'z'));
  });
  constexpr std::size_t kLongest = 6;
  return text.substr(0, kLongest);
}

// The same for all jerseys that a file takes for one: 5 and 05, which are one number, as 0 and 00 are not; A1
// and a1, which are one key.
std::string folded(const std::string& jersey) {
  const int number = Roster::jerseyNumber(jersey);
  if (number > 0)
    return std::to_string(number);
  std::string text = jersey;
  std::ranges::transform(text, text.begin(), [](unsigned char letter) { return std::tolower(letter); });
  return text;
}

void extend(ExchangeNote& note, const std::string& name, const std::string& jersey) {
  const std::string between = note.x.empty() ? "" : ", ";
  note.x += between + name;
  note.y += between + jersey;
}

} // namespace

ForeignRoster rosterOf(const ForeignGame& game, Side team) {
  const ForeignTeam& foreign = game.teams[team];
  ForeignRoster roster;
  std::set<std::string> taken;
  std::map<std::string, int> nextOf;          // of a stem: the number to be tried next
  ExchangeNote missing{Text::ImportNoJersey}; // all in one: without a box score everybody's is
  ExchangeNote twice{Text::JerseyTwice};
  for (const ForeignPlayer& player : foreign.players) {
    const std::string own = usable(player.jersey);
    const std::string stem = own.empty() ? "X" : own + "X";
    std::string jersey = own.empty() ? "X1" : own;
    for (int& next = nextOf.try_emplace(stem, own.empty() ? 1 : 2).first->second;
         !taken.insert(folded(jersey)).second; ++next)
      jersey = stem + std::to_string(next);
    if (jersey != own)
      extend(own.empty() ? missing : twice, player.name, jersey);
    roster.jerseys.push_back(std::move(jersey));
  }
  for (const ExchangeNote& note : {missing, twice}) {
    if (!note.x.empty())
      roster.notes.push_back(note);
  }
  const std::vector<bool> plays = thosePlaying(game, team);
  if (const auto count = std::ranges::count(plays, true); count > Roster::kLargestEntry)
    roster.notes.push_back({Text::ImportManyPlayers, foreign.name, std::to_string(count)});
  for (const bool played : {true, false}) {
    for (std::size_t i = 0; i < foreign.players.size(); ++i) {
      if (plays[i] == played)
        roster.players.push_back({roster.jerseys[i], foreign.players[i].position, foreign.players[i].name});
    }
  }
  return roster;
}

} // namespace hooptab
