// The command line of the program. Only takes it apart: what is asked for is done by main.
#pragma once

#include "appearance/ColourScheme.h"

#include <optional>
#include <string>
#include <vector>

namespace hooptab {

struct Arguments {
  std::optional<std::string> folder; // absolute
  std::optional<ColourScheme> colourScheme;
  bool asksForHelp = false;
  bool asksForVersion = false;
  bool leavesWhenReady = false;
  bool isRehearsal = false;
  std::vector<std::string> games; // absolute
  std::string error;              // one line; empty when the command line is understood
};

// `words` without the program's name; paths are taken relative to `currentFolder`. After "--" every word is a
// game.
[[nodiscard]] Arguments parseArguments(const std::vector<std::string>& words,
                                       const std::string& currentFolder);

// What --help prints.
[[nodiscard]] std::string usage();

} // namespace hooptab
