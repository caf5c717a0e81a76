// Dates as games carry them, as numbers that can be compared. Only days of the calendar count: a date typed
// by hand may be anything.
#pragma once

#include <optional>
#include <string_view>

namespace hooptab {

// Days since 1970-01-01 of "yyyy-mm-dd"; nothing for any other text and for days that no month has.
[[nodiscard]] std::optional<int> calendarDay(std::string_view text);

} // namespace hooptab
