#include "cli/ExchangeOptions.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace hooptab {

namespace {

// Beside the formats of games.
constexpr std::pair<std::string_view, ExportContent> kExtracts[] = {
    {"tables", ExportContent::Tables},     {"overlay", ExportContent::Overlay},
    {"clips", ExportContent::Clips},       {"chapters", ExportContent::Chapters},
    {"captions", ExportContent::Captions},
};

} // namespace

std::optional<ExportFormat> exportFormatOf(std::string_view key) {
  if (const std::optional<GameFormat> format = formatOf(key))
    return ExportFormat{ExportContent::ForeignGame, *format};
  const auto found = std::ranges::find(kExtracts, key, &std::pair<std::string_view, ExportContent>::first);
  return found == std::end(kExtracts) ? std::nullopt : std::optional(ExportFormat{found->second});
}

std::string importFormatKeys() {
  std::string keys = "auto";
  for (const GameFormat format : kGameFormats)
    keys.append("|").append(formatKey(format));
  return keys;
}

std::string exportFormatKeys() {
  std::string keys = importFormatKeys().substr(std::string_view("auto|").size());
  for (const auto& [key, kind] : kExtracts)
    keys.append("|").append(key);
  return keys;
}

} // namespace hooptab
