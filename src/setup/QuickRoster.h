// The numbers of a team that plays without names, typed in one go: "4 5 7 10 23".
#pragma once

#include "game/Rules.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace hooptab {

struct QuickRoster {
  enum class Problem : std::uint8_t { None, NoJersey, Twice, WrittenOtherwise, OneTooMany };

  std::vector<std::string> jerseys = {}; // as typed, in their order; none with a problem
  Problem problem = Problem::None;
  // Of the problem: the first part of what was typed that is wrong, and where it stands, in bytes.
  std::string part = {};
  std::size_t place = 0;
  std::string other = {}; // a number that it repeats, as typed before
};

// Between numbers stand blanks, commas, semicolons or new lines, however many; nothing typed is an empty
// roster and no problem. A number is one to three digits, none comes twice (5 and 05 are one, 0 and 00 two),
// and there are fifteen at most.
[[nodiscard]] QuickRoster quickRoster(std::string_view typed);

} // namespace hooptab
