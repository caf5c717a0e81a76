// A game as the simulator played it: details, rosters and event lines, ready to be written to a file or used
// in memory.
#pragma once

#include "game/GameFile.h"
#include "game/Side.h"
#include "storage/ProfileBatch.h"

#include <string>
#include <utility>
#include <vector>

namespace hooptab {

struct SimulatedGame {
  GameDetails details;
  PerSide<std::vector<RosterPlayer>> roster;
  // Event lines by period, each with its number: what a period section holds.
  std::vector<std::vector<std::pair<std::string, std::string>>> periods;

  // The name that the program proposes for the file: "2026-03-01 Season LYNX-AAA  COUGAR-AA .GAM".
  [[nodiscard]] std::string fileName() const;
  // Everything that the file holds, sections as wholes; the file must not exist.
  [[nodiscard]] ProfileBatch batch() const;
  // As if read from its file.
  [[nodiscard]] Game inMemory() const;
};

} // namespace hooptab
