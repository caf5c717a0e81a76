// The forms of clocks and dates that several systems write.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace hooptab {

// Hundredths of a second of "mm:ss", "m:ss", "mm:ss:cc" and "mm:ss.c"; nothing for any other text, a negative
// clock among them.
[[nodiscard]] std::optional<int> clockCentiseconds(std::string_view text);

// "yyyy-mm-dd" of "mm/dd/yyyy", with or without zeros, and of a date that is in that form already; empty for
// what is no day of the calendar.
[[nodiscard]] std::string isoDateOfMonthFirst(std::string_view text);

} // namespace hooptab
