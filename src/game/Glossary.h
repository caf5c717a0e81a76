// The one list of what is counted: its abbreviation, which is also the name of its column in tables, files
// and on the command line, and its words. Windows, reports and the guide take their words from here.
//
// FG and F3 are one kind of shot each, as the tables of a game count them: a jump shot for two points,
// without layups, put-backs and dunks, and a shot for three. In the tables of a season FG is both together.
// Where a label is free, as below a shot chart, shots are 2P and 3P, as everyone in basketball says.
#pragma once

#include "game/EventKind.h"
#include "settings/Text.h"

#include <string_view>
#include <vector>

namespace hooptab {

inline constexpr std::string_view kTwoPointers = "2P";
inline constexpr std::string_view kThreePointers = "3P";

struct Term {
  std::string_view abbreviation;
  Text words;
};

// The kinds of events first, in their order.
[[nodiscard]] std::vector<Term> glossary();

// What an abbreviation stands for; none for one that is not in the list.
[[nodiscard]] Text termWords(std::string_view abbreviation);

} // namespace hooptab
