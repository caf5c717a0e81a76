// A game of ours in the files of another system.
#pragma once

#include "foreign/ForeignGame.h"

#include <string>
#include <vector>

namespace hooptab {

struct ExportedFile {
  std::string name; // of the file alone
  std::string content;
};

// `stem` is what the names begin with. Some formats have two or three files.
[[nodiscard]] std::vector<ExportedFile> exportAs(GameFormat format, const ForeignGame& game,
                                                 const std::string& stem);

} // namespace hooptab
