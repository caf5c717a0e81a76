// The folder of real games, which tests read where it is and skip where it is missing.
#pragma once

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

namespace hooptab {

inline std::filesystem::path sharedFolder() {
  const char* const fromEnvironment = std::getenv("HOOPTAB_SHARED");
  return fromEnvironment != nullptr ? fromEnvironment : HOOPTAB_SHARED;
}

// The .GAM files of games/ or of a folder in it, in order of name; empty where the folder is missing.
inline std::vector<std::filesystem::path> sharedGames(const std::string& subfolder = {}) {
  std::vector<std::filesystem::path> games;
  std::error_code missing;
  for (const auto& entry :
       std::filesystem::directory_iterator(sharedFolder() / "games" / subfolder, missing)) {
    if (entry.path().extension() == ".GAM")
      games.push_back(entry.path());
  }
  std::ranges::sort(games);
  return games;
}

} // namespace hooptab
