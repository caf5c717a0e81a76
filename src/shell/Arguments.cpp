#include "shell/Arguments.h"

#include <filesystem>

namespace hooptab {

namespace {

std::string absolutePath(const std::string& path, const std::string& currentFolder) {
  return (std::filesystem::path(currentFolder) / path).lexically_normal().string();
}

} // namespace

Arguments parseArguments(const std::vector<std::string>& words, const std::string& currentFolder) {
  constexpr std::string_view kFolderWithValue = "--folder=";
  Arguments result;
  bool onlyGamesFollow = false;
  for (auto word = words.begin(); word != words.end(); ++word) {
    if (onlyGamesFollow || !word->starts_with('-') || *word == "-") {
      if (!word->empty())
        result.games.push_back(absolutePath(*word, currentFolder));
    } else if (*word == "--") {
      onlyGamesFollow = true;
    } else if (*word == "--light") {
      result.colourScheme = ColourScheme::Light;
    } else if (*word == "--dark") {
      result.colourScheme = ColourScheme::Dark;
    } else if (*word == "--help" || *word == "-h") {
      result.asksForHelp = true;
    } else if (*word == "--version") {
      result.asksForVersion = true;
    } else if (*word == "--leave-when-ready") {
      result.leavesWhenReady = true;
    } else if (*word == "--rehearsal") {
      result.isRehearsal = true;
    } else if (*word == "--folder" || word->starts_with(kFolderWithValue)) {
      std::string folder;
      if (word->starts_with(kFolderWithValue))
        folder = word->substr(kFolderWithValue.size());
      else if (std::next(word) != words.end())
        folder = *++word;
      if (folder.empty()) {
        result.error = "--folder needs the name of a folder";
        return result;
      }
      result.folder = absolutePath(folder, currentFolder);
    } else {
      result.error = "unknown option " + *word;
      return result;
    }
  }
  return result;
}

std::string usage() {
  return "Usage: hooptab [--folder DIR] [--light|--dark] [GAME.GAM ...]\n"
         "Records basketball games and shows their scorecards. The games named are opened.\n"
         "\n"
         "  --folder DIR   the program folder, which holds the settings (CONFIG.INI)\n"
         "  --light        light colours\n"
         "  --dark         dark colours\n"
         "  --leave-when-ready\n"
         "                 print \"ready\" as soon as the window stands, and leave; checks an installation\n"
         "  --rehearsal    take the game clock's time from standard input, for tests; CONTRIBUTING.md tells how\n"
         "  --help         print this text\n"
         "  --version      print the version\n";
}

} // namespace hooptab
