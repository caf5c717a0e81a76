#include "exchange/ExportKinds.h"

#include "exchange/GameReading.h"

namespace hooptab {

std::vector<ExportKind> gameFormatKinds() {
  std::vector<ExportKind> kinds;
  for (const GameFormat format : kGameFormats) {
    kinds.push_back({std::string(formatKey(format)), std::string(formatName(format)), true,
                     [format](const GameToExport& game, const std::string& stem) {
                       return exportAs(format, foreignGameOf(*game.counted, game.text), stem);
                     }});
  }
  return kinds;
}

} // namespace hooptab
