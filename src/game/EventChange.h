// One step of a change to the events of a game: a new line, a line that becomes another, or one that moves.
// The same steps change the game in memory and its file; several of them are one write.
#pragma once

#include <map>
#include <string>
#include <utility>
#include <vector>

namespace hooptab {

struct EventChange {
  enum class Kind { Add, Replace, Move };
  Kind kind = Kind::Add;
  int period = 1;
  std::string key;         // the event's number; of a new one, a number that no event has yet
  std::string line = {};   // Add and Replace: clock and code included, "E" in front of a deleted one
  std::string before = {}; // Add and Move: the key before which it stands; empty for the end of the period
  friend bool operator==(const EventChange&, const EventChange&) = default;
};

// Keys and lines of the periods as a file has them, each in the order of the game.
using PeriodLines = std::vector<std::pair<std::string, std::string>>;
using EventLines = std::map<int, PeriodLines>;

} // namespace hooptab
