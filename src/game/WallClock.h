// When the events of a game happened by the clock on the wall: section HORLOGE of its file, as
// docs/formats/game.md describes it. With it every event can be found in a video. Nobody who counts a game
// needs it.
#pragma once

#include "storage/ProfileText.h"

#include <cstdint>
#include <map>
#include <string>
#include <string_view>

namespace hooptab {

inline constexpr std::string_view kWallClockSection = "HORLOGE";
inline constexpr std::string_view kWallClockOwner = "PARTIE"; // whose game's id it has

// By event number, in milliseconds of UTC since 1970. Empty where the section is not of the game of that id:
// older programs make a new game over an old file and leave it.
[[nodiscard]] std::map<int, std::int64_t> readWallClock(const ProfileText& text, std::string_view gameId);

// 32 hexadecimal digits, drawn at random.
[[nodiscard]] std::string newGameId();

} // namespace hooptab
