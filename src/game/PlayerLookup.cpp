#include "game/PlayerLookup.h"

#include "storage/Module1.h"

#include <algorithm>

namespace hooptab {

namespace {

// Among those after the fifteenth, whom no entry counts: the same text first, else the first of equal number.
const RosterPlayer* findUncounted(const Roster& roster, std::string_view jersey) {
  const std::vector<RosterPlayer>& players = roster.players();
  if (players.size() <= Roster::kLargestEntry)
    return nullptr;
  const auto first = players.begin() + Roster::kLargestEntry;
  auto found =
      std::find_if(first, players.end(), [&](const RosterPlayer& player) { return player.jersey == jersey; });
  if (const int number = Roster::jerseyNumber(jersey); found == players.end() && number >= 0)
    found = std::find_if(first, players.end(), [&](const RosterPlayer& player) {
      return Roster::jerseyNumber(player.jersey) == number;
    });
  return found == players.end() ? nullptr : &*found;
}

ListedPlayer listedPlayer(const Roster& roster, std::string_view jersey) {
  const int entry = roster.entryOfListed(jersey);
  const RosterPlayer* player = entry > 0 ? roster.player(entry) : findUncounted(roster, jersey);
  return {player, player != nullptr ? player->jersey : roster.listedJersey(jersey)};
}

} // namespace

const RosterPlayer* findPlayer(const Roster& roster, std::string_view jersey) {
  const int entry = roster.entryOf(jersey);
  return entry > 0 ? roster.player(entry) : findUncounted(roster, jersey);
}

std::vector<ListedPlayer> playersOfList(std::string_view list, const Roster& roster) {
  std::vector<ListedPlayer> players;
  for (const std::string_view jersey : Module1::JerseysOfList(list))
    players.push_back(listedPlayer(roster, jersey));
  return players;
}

std::vector<ListedPlayer> playersOnCourt(std::string_view list, const Roster& roster) {
  std::vector<ListedPlayer> players;
  for (const std::string_view jersey : Module1::countedJerseys(list)) {
    ListedPlayer player = listedPlayer(roster, jersey);
    if (std::ranges::find(players, player) == players.end())
      players.push_back(std::move(player));
  }
  return players;
}

std::string jerseysOnCourt(std::string_view list, const Roster& roster, char between) {
  std::string jerseys;
  for (const ListedPlayer& listed : playersOnCourt(list, roster)) {
    if (!jerseys.empty())
      jerseys += between;
    jerseys += listed.jersey;
  }
  return jerseys;
}

} // namespace hooptab
