// How teams with equal shares of wins are parted, as bodies of the sport publish it: one row for each of the
// rule sets that games name, its criteria in the order in which they are asked. What they come to is
// Standings' work.
//
// Sources: FIBA, Official Basketball Rules, D.1.3 (games between the teams: wins, difference and points; all
// games: difference and points; asked anew of those who are still equal). NBA, tie-breakers for the seeding
// of teams (games between them; conferences and divisions are unknown here; net points of all games). NCAA,
// tie-breakers of its conferences (games between them; games against the best placed, the next ones after
// them; difference of points).
#pragma once

#include "settings/Text.h"

#include <array>
#include <cstdint>
#include <string_view>

namespace hooptab {

enum class TieCriterion : std::uint8_t {
  None,              // the end of a list
  ShareBetween,      // of wins in the games between those who are equal
  DifferenceBetween, // of points in those games
  PointsBetween,     // scored in those games
  AgainstTheBest,    // share of wins against those placed best, then against the next ones
  Difference,        // of points in all games
  Points,            // scored in all games
};

struct TieRules {
  std::string_view key; // of the rule set
  Text words;
  std::array<TieCriterion, 6> criteria;
};

// Where no game names one, the first.
inline constexpr std::array kTieRules = [] {
  using enum TieCriterion;
  return std::to_array<TieRules>(
      {{"FIBA",
        Text::TiesBetween,
        {ShareBetween, DifferenceBetween, PointsBetween, Difference, Points, None}},
       {"NBA", Text::TiesWinsBetween, {ShareBetween, Difference, None}},
       {"NCAA", Text::TiesByGames, {ShareBetween, AgainstTheBest, Difference, None}},
       {"FIBAJEUNES",
        Text::TiesBetween,
        {ShareBetween, DifferenceBetween, PointsBetween, Difference, Points, None}}});
}();

} // namespace hooptab
