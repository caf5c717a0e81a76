// What a broadcast shows over its picture: one small text file for each value, for programs that show a file
// as it is, and all values as one row of a table, scoreboard.json. Whoever writes them replaces each file as
// a whole, and only those whose content is another.
#pragma once

#include "game/CountedGame.h"
#include "settings/Texts.h"

#include <string>
#include <vector>

namespace hooptab {

// The clock as it stands now, which no event says while it runs.
struct OverlayClock {
  int period = 1;
  int seconds = 0; // left
  bool isRunning = false;
};
// As the last event left it, for who has no clock.
[[nodiscard]] OverlayClock clockOfLastEvent(const CountedGame& counted);

struct OverlayFile {
  std::string name;
  std::string content; // UTF-8, without a line end; empty where there is nothing to show
};
// Always the same names, in the same order.
[[nodiscard]] std::vector<OverlayFile> overlayFiles(const CountedGame& counted, const OverlayClock& clock,
                                                    const Texts& texts);

} // namespace hooptab
