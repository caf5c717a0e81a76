#include "publish/ExtractKinds.h"

#include "extracts/GameTables.h"
#include "extracts/OverlayFiles.h"

#include <array>
#include <sstream>

namespace hooptab {

namespace {

std::vector<ExportedFile> tablesOf(const GameToExport& game) {
  std::array<std::ostringstream, kGameTableCount> texts;
  TableWriter::Sinks sinks = {};
  for (std::size_t i = 0; i < kGameTableCount; ++i)
    sinks[i] = &texts[i];
  TableWriter(sinks).append(extractSource(*game.counted, game.text));
  std::vector<ExportedFile> files;
  for (std::size_t i = 0; i < kGameTableCount; ++i)
    files.push_back({std::string(tableFileName(kGameTables[i])), texts[i].str()});
  return files;
}

std::vector<ExportedFile> overlayOf(const GameToExport& game, const Texts& texts) {
  std::vector<ExportedFile> files;
  for (OverlayFile& file : overlayFiles(*game.counted, clockOfLastEvent(*game.counted), texts))
    files.push_back({std::move(file.name), std::move(file.content)});
  return files;
}

} // namespace

std::vector<ExportKind> extractKinds(const Texts& texts) {
  return {{"tables", std::string(texts.text(Text::TablesKind)), false,
           [](const GameToExport& game, const std::string&) { return tablesOf(game); }},
          {"overlay", std::string(texts.text(Text::OverlayKind)), true,
           [&texts](const GameToExport& game, const std::string&) { return overlayOf(game, texts); }}};
}

} // namespace hooptab
