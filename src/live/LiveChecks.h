// What looks wrong in a game while it is recorded, for quiet marks in its list of events. Each finding leads
// to the event where it can be mended. Changes nothing, asks nothing; deleted events do not count.
#pragma once

#include "storage/GameFile.h"
#include "storage/Texts.h"

#include <cstddef>
#include <string>
#include <vector>

namespace hooptab {

struct LiveFinding {
  // What was found, as the number of its text.
  enum class Kind {
    NotOnCourt = 1966,
    NotFive = 1967,
    OtherTime = 1968,
    FouledOutBefore = 1969,
    AssistWithoutBasket = 1970,
    Twice = 1971,
  };
  std::size_t event = 0; // place in the list of events
  Kind kind = Kind::NotOnCourt;
  // The text's placeholders:
  int team = 0;            // XXX is this team and, if there is one, this player
  std::string jersey = {}; // empty for the team as a whole
  std::string found = {};  // YYY
  std::string wanted = {}; // ZZZ
};

// In the order of the events, without those that the user has accepted.
[[nodiscard]] std::vector<LiveFinding> checkRecorded(const Game& game);
[[nodiscard]] std::string wordsOf(const LiveFinding& finding, const Game& game, const Texts& texts);

} // namespace hooptab
