// Times as EuroLeague's files have them: the minute of a game, and the clock on the wall, "yyyymmddhhmmss" of
// UTC.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace hooptab {

inline constexpr int kEuroLeagueQuarters = 4;
// The minute of the game that runs when that is left of a period, from 1: quarters of ten minutes, overtimes
// of five. A minute ends with its last second.
[[nodiscard]] int euroLeagueMinute(int period, int centiseconds);

// In milliseconds of UTC since 1970.
[[nodiscard]] std::optional<std::int64_t> timeOfEuroLeague(std::string_view digits);
// The whole seconds of a time from 1970 on; empty for one that those digits cannot say.
[[nodiscard]] std::string euroLeagueTime(std::int64_t milliseconds);
// "yyyy-mm-dd".
[[nodiscard]] std::string dateOfTime(std::int64_t milliseconds);

} // namespace hooptab
