// Finds the game files of a folder: *.GAM in any letter case, regular files only. Reads none of them.
#pragma once

#include "catalogue/GameCatalogue.h"

#include <string>
#include <vector>

namespace hooptab {

struct FoundGames {
  ScanOutcome outcome = ScanOutcome::Done;
  std::vector<std::string> paths;           // ascending
  std::vector<std::string> unreadablePaths; // sub-folders that could not be listed
};

// Sub-folders, on request, are entered once each however many links lead to them.
[[nodiscard]] FoundGames findGames(FileSystem& files, const ScanRequest& request,
                                   const TaskWatch& watch = {});

} // namespace hooptab
