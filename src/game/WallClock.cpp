#include "game/WallClock.h"

#include "storage/Module1.h"

#include <charconv>
#include <cstdio>
#include <random>

namespace hooptab {

std::map<int, std::int64_t> readWallClock(const ProfileText& text, std::string_view gameId) {
  std::map<int, std::int64_t> times;
  if (gameId.empty() || text.value(kWallClockSection, kWallClockOwner) != gameId)
    return times;
  for (const ProfileText::Line& line : text.section(kWallClockSection)) {
    const int number = Module1::wholeNumber(line.name);
    std::int64_t time = 0;
    const char* const end = line.value.data() + line.value.size();
    const auto [stop, error] = std::from_chars(line.value.data(), end, time);
    if (number > 0 && error == std::errc() && stop == end && time > 0)
      times.emplace(number, time);
  }
  return times;
}

std::string newGameId() {
  constexpr int kWords = 4;
  std::random_device random;
  std::string id;
  for (int word = 0; word < kWords; ++word) {
    char text[16];
    std::snprintf(text, sizeof text, "%08x", random());
    id += text;
  }
  return id;
}

} // namespace hooptab
