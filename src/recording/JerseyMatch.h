// Which of the players that can be chosen a typed number means.
#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace hooptab {

struct FittingJersey {
  std::size_t place = 0;
  bool isWhole = false; // nothing is left to be typed
  friend bool operator==(const FittingJersey&, const FittingJersey&) = default;
};

// The jerseys that begin with what was typed: "09" with "0", "09", and "9". Those that are exactly that come
// first, then those of the same number, then the rest, each in their order. An empty place in `jerseys` never
// fits; with nothing typed every other does.
[[nodiscard]] std::vector<FittingJersey> fittingJerseys(std::span<const std::string> jerseys,
                                                        std::string_view typed);
// Whether the jersey begins with what was typed and goes on: "00" and "09" with "0", "09" with "".
[[nodiscard]] bool canBecome(std::string_view typed, std::string_view jersey);

// Whether one of the jerseys begins with what was typed and goes on: what is whole may be meant for more.
[[nodiscard]] bool goesOn(std::span<const std::string> jerseys, std::string_view typed);

} // namespace hooptab
