// The list of events of a FIBA LiveStats file, turned round so that the first event comes first, with what
// the file says of each: who, where, whose shot, who was fouled. Rows that are no event of ours are counted
// by kind.
#pragma once

#include "foreign/ForeignGame.h"
#include "livedata/JsonDocument.h"

#include <map>
#include <optional>
#include <string>

namespace hooptab {

// By team of ours: the file's numbers of the players, to their places in the team's list.
using LiveStatsNumbers = PerSide<std::map<int, int>>;

// The teams of the file, "1" and "2": the home team first.
[[nodiscard]] constexpr std::optional<Side> teamOfLiveStats(int theirs) {
  return theirs == 1 ? std::optional(Side::Home) : theirs == 2 ? std::optional(Side::Visitor) : std::nullopt;
}
// As it is meant: the international form where only that can be kept, or tells more of upper and lower case;
// and what was encoded twice, once.
[[nodiscard]] std::string nameInLiveStats(const Json& person);

// Adds to a game that has rules, teams and players. A player whom only the events name is added to his team.
void readLiveStatsEvents(const Json& file, LiveStatsNumbers& numbers, ForeignGame& game);

} // namespace hooptab
