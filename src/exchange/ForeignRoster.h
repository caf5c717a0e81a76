// The roster that a team of another system's file gets in ours: who played comes first, and each has a number
// of his own.
#pragma once

#include "foreign/ExchangeNote.h"
#include "foreign/ForeignGame.h"
#include "game/Roster.h"

#include <string>
#include <vector>

namespace hooptab {

struct ForeignRoster {
  std::vector<RosterPlayer> players = {};
  std::vector<std::string> jerseys = {}; // by place in the foreign team's list
  std::vector<ExchangeNote> notes = {};  // numbers that were missing, or worn by two
};

[[nodiscard]] ForeignRoster rosterOf(const ForeignGame& game, Side team);

} // namespace hooptab
