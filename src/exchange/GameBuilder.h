// Makes a game of ours of one that was read from another system's file: rosters, starts and stops of the
// clock, line-ups, event lines with their details, wall clocks, the players' foreign ids. What the source
// leaves open is told in notes, and nothing is made to fit.
#pragma once

#include "foreign/ExchangeNote.h"
#include "foreign/ForeignGame.h"
#include "storage/ProfileText.h"

#include <array>
#include <string>
#include <vector>

namespace hooptab {

struct BuiltGame {
  ProfileText text; // the whole file
  // By place in the foreign team's list: the jersey that the player has here.
  PerSide<std::vector<std::string>> jerseys = {};
  std::vector<ExchangeNote> notes = {}; // holes in line-ups, jerseys that had to be changed
};

// `id`: 32 hexadecimal digits, as IDPARTIE.
[[nodiscard]] BuiltGame buildGame(const ForeignGame& game, const std::string& id);

} // namespace hooptab
