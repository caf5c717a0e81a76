// What has come of one change to a running game. The time that passes is none.
#pragma once

#include "game/GameOnDisk.h"
#include "recording/OnCourt.h"

#include <vector>

namespace hooptab {

struct GameNews {
  bool isOpened = false; // another game, or the same one read anew: everything may be different
  std::vector<EventPlace> added;
  std::vector<EventPlace> changed; // their text or their place; those that count again, too
  std::vector<EventPlace> deleted; // they count no longer
  bool hasOtherCounts = false;     // beyond these: players were added, or others changed the file
  bool details = false;            // rules, colours, notes, accepted findings
  bool phase = false;              // the clock runs or stands, another period, the end
  bool clock = false;              // it was set
  bool lineUp = false;             // who is on court, or is about to be
  bool disk = false;               // what waits for the disk, and why
  ForeignHands foreign = {};       // what others did

  [[nodiscard]] bool hasEvents() const { return !added.empty() || !changed.empty() || !deleted.empty(); }
  // Of the game itself, beside what waits for the disk.
  [[nodiscard]] bool isOfGame() const {
    return isOpened || hasEvents() || hasOtherCounts || details || phase || clock || lineUp;
  }
  [[nodiscard]] bool isEmpty() const { return !disk && !isOfGame(); }
};

} // namespace hooptab
