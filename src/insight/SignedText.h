// Numbers that say by how much something is ahead, as windows and paper show them: with a sign, and a minus
// as wide as the plus.
#pragma once

#include <string>

namespace hooptab {

[[nodiscard]] std::string signedText(int number);                  // "+8", "−2", "0"
[[nodiscard]] std::string signedText(double number, int decimals); // "+6.2", "−0.5", "0.0"
// The same minus in a number as others write it: "-2" becomes "−2".
[[nodiscard]] std::string withWideMinus(std::string number);

} // namespace hooptab
