// With whom a team began its last game, as a proposal for this one. Looks into the files of the game's own
// folder, as many as can be read while somebody waits; changes nothing.
#pragma once

#include "game/GameFile.h"
#include "game/Side.h"
#include "storage/FileSystem.h"

#include <cstddef>
#include <optional>
#include <string>

namespace hooptab {

struct LastFive {
  static constexpr std::size_t kMostFiles = 200; // those that were changed last

  unsigned players = 0;     // five of this game's roster, as in OnCourt
  std::string jerseys = {}; // "4 5 10 12 15"
  std::string date = {};    // of that game, and whom it was against
  std::string opponent = {};

  // Its last game is the one of the latest date, of equal dates the last by file name, in which a team of the
  // same abbreviation and category has five on court at some stop: the first of these lists. None where there
  // is no such game, and where not all five have their numbers in this roster.
  [[nodiscard]] static std::optional<LastFive> of(FileSystem& files, const Game& game, Side team);
};

} // namespace hooptab
