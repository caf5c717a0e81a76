#include "foreign/ForeignGame.h"

#include <algorithm>

namespace hooptab {

namespace {

constexpr std::array<std::string_view, kGameFormats.size()> kKeys = {"fls", "euroleague", "nba", "bbgame"};

} // namespace

std::string_view formatKey(GameFormat format) {
  return kKeys[static_cast<std::size_t>(format)];
}

std::optional<GameFormat> formatOf(std::string_view key) {
  const auto found = std::ranges::find(kKeys, key);
  return found == kKeys.end() ? std::nullopt
                              : std::optional(kGameFormats[static_cast<std::size_t>(found - kKeys.begin())]);
}

std::string_view formatName(GameFormat format) {
  switch (format) {
  case GameFormat::LiveStats: return "FIBA LiveStats";
  case GameFormat::EuroLeague: return "EuroLeague";
  case GameFormat::NbaLive: return "NBA";
  case GameFormat::BbGame: return "bbgame XML";
  }
  return {};
}

} // namespace hooptab
