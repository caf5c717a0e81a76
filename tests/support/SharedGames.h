// The folder of real games. Where it is missing, what needs any games plays the sample season that the build
// makes, and what is about the real ones, with their official box scores, is no test.
#pragma once

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

namespace hooptab {

inline std::filesystem::path sharedFolder() {
  const char* const fromEnvironment = std::getenv("HOOPTAB_SHARED");
  return fromEnvironment != nullptr ? fromEnvironment : HOOPTAB_SHARED;
}

inline std::string bytesOf(const std::filesystem::path& path) {
  std::ostringstream bytes;
  bytes << std::ifstream(path, std::ios::binary).rdbuf();
  return bytes.str();
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

// The real games, or those of the sample season.
inline std::vector<std::filesystem::path> realOrSampleGames() {
  std::vector<std::filesystem::path> games = sharedGames();
  if (games.empty()) {
    for (const auto& entry : std::filesystem::directory_iterator(HOOPTAB_SAMPLES)) {
      if (entry.path().extension() == ".GAM")
        games.push_back(entry.path());
    }
    std::ranges::sort(games);
  }
  return games;
}

// For a test with parameters of one folder: one where it is there.
inline std::vector<std::filesystem::path> sharedFolders(const std::string& subfolder) {
  std::error_code missing;
  const std::filesystem::path folder = sharedFolder() / subfolder;
  return std::filesystem::is_directory(folder, missing) ? std::vector{folder}
                                                        : std::vector<std::filesystem::path>();
}

} // namespace hooptab
