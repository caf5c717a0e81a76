// Finds the players whom events and on-court lists name, for readers that show or check them: unlike the
// tally they also ask for players after the fifteenth, for all of a list that is too long, and for jerseys
// that are in no roster.
#pragma once

#include "game/Roster.h"

#include <string>
#include <string_view>
#include <vector>

namespace hooptab {

// The player whom an event names, or null.
[[nodiscard]] const RosterPlayer* findPlayer(const Roster& roster, std::string_view jersey);

// A player of an on-court list. Two are the same player when they are equal.
struct ListedPlayer {
  const RosterPlayer* player = nullptr; // null for one who is in no roster
  std::string jersey;                   // the roster's, else as a list writes it
  friend bool operator==(const ListedPlayer&, const ListedPlayer&) = default;
};
// All of a list as it stands, too many and twice named ones included; nobody for a text that is no list.
[[nodiscard]] std::vector<ListedPlayer> playersOfList(std::string_view list, const Roster& roster);
// Those of a list who count, each once.
[[nodiscard]] std::vector<ListedPlayer> playersOnCourt(std::string_view list, const Roster& roster);
// Their numbers, as the roster writes them: "4 5 10".
[[nodiscard]] std::string jerseysOnCourt(std::string_view list, const Roster& roster, char between = ' ');

} // namespace hooptab
