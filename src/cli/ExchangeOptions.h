// What the command line says of games that come from other systems, and of what is made of a game for others.
#pragma once

#include "extracts/Clips.h"
#include "foreign/ForeignGame.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace hooptab {

// What a game is written as.
enum class ExportContent : std::uint8_t { ForeignGame, Tables, Overlay, Clips, Chapters, Captions };
struct ExportFormat {
  ExportContent content = ExportContent::ForeignGame;
  GameFormat format = GameFormat::LiveStats; // of a foreign game
};
[[nodiscard]] std::optional<ExportFormat> exportFormatOf(std::string_view key);
// All that there are, as they are told: "fls|euroleague|...".
[[nodiscard]] std::string importFormatKeys();
[[nodiscard]] std::string exportFormatKeys();

struct ExchangeOptions {
  std::string folder = ".";               // --to
  std::string formatKey;                  // --format, as typed
  std::optional<GameFormat> importFormat; // none: as it is recognised
  ExportFormat exportFormat;
  std::string date; // yyyy-mm-dd
  bool replaces = false;
  ClipRequest clips; // the anchors are those of chapters and captions, too
};

} // namespace hooptab
