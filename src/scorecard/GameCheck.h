// Names what is wrong in a game file: lines that cannot be understood, players who are in no roster or not on
// court, clocks that rise. Changes nothing and stops at nothing.
#pragma once

#include "storage/GameFile.h"

#include <string>
#include <vector>

namespace hooptab {

struct GameFinding {
  bool isWarning = false; // a warning alone leaves the file good
  int period = 0;
  std::string key;     // of the event
  std::string line;    // as it stands
  std::string problem; // English, one sentence without full stop
};

[[nodiscard]] std::vector<GameFinding> checkGame(const Game& game);

} // namespace hooptab
