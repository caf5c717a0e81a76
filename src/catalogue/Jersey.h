// Jerseys as a season compares them, over games whose rosters may write them differently.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace hooptab {

// "05" and "5" are one jersey, "5"; "0" and "00" are two, and a text that is no number is itself.
[[nodiscard]] std::string canonicalJersey(std::string_view jersey);
// By number, "0" before "00", those that are no numbers behind by their letters.
[[nodiscard]] bool jerseyBefore(const std::string& left, const std::string& right);

// Of canonical jerseys in their order: "4-5-10-12-15".
[[nodiscard]] std::string lineName(const std::vector<std::string>& jerseys);
// The same as an on-court list, IN-04-05-10-12-15; in a team that has both, 0 is written 00 and 00 is 000.
[[nodiscard]] std::string lineList(const std::vector<std::string>& jerseys, bool teamHasBothZeros);

} // namespace hooptab
