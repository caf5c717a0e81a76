// Holds a file's own box score against what its events count to here, player by player and team by team. Only
// tells what differs; adjusts nothing.
#pragma once

#include "exchange/GameBuilder.h"
#include "foreign/ForeignGame.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace hooptab {

struct Difference {
  Side team = Side::Visitor;
  std::string player = {};  // "12 Ana Roy"; empty: the team
  std::string counter = {}; // one of those below, or "periods[2]"
  int ours = 0;
  int theirs = 0;
  friend bool operator==(const Difference&, const Difference&) = default;
};

// The names by which readers say official numbers.
// Of players: "seconds", "FGM", "FGA" (two-point field goals of every kind), "F3M", "F3A", "FTM", "FTA",
// "PTS", "Ast", "BS", "ST", "TO", "OR", "DR", "PF", "TF", "FD", "BA", "rating" (the efficiency as box --json
// has it), "plusMinus". A file whose personal fouls include the technical ones says "PF" and no "TF": then
// both together are compared. Of teams: "points", and of the team's own row "teamRow.OR", "teamRow.DR",
// "teamRow.TO", "teamRow.CF", "timeouts"; and those of players, which are then sums of players without the
// team's own row.
[[nodiscard]] std::span<const std::string_view> reconciledNames();

// What both say and is not equal (within the tolerance of the official number), in the order of teams,
// players and names. `compared`, where given, becomes how many numbers were held against each other.
[[nodiscard]] std::vector<Difference> reconcile(const ForeignGame& game, const BuiltGame& built,
                                                int* compared = nullptr);

} // namespace hooptab
