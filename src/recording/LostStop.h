// A game that was left while its clock ran, as by a crash: what the clock may stand at now. The last event
// says where it was seen last, the time of the file how long ago that was. Knows no file and no window.
#pragma once

#include <cstdint>
#include <optional>

namespace hooptab {

struct LostStop {
  int lastClock = 0;             // of the last event
  std::optional<int> runOnClock; // what it would show, had it run on; absent where that cannot be told
  bool isPeriodOver = false;     // it would have reached 00:00: nobody goes on from there by one click

  // Both times by the wall clock, in seconds. Every event is written at once, so that the time of the file is
  // that of the last one, unless a colour, a note or an earlier event was changed behind it: then the clock
  // is too high by that time, for the file has no second one. A file from the future, or of this very second,
  // tells nothing.
  [[nodiscard]] static LostStop of(int lastClock, std::int64_t fileTime, std::int64_t now) {
    const std::int64_t passed = now - fileTime;
    if (passed <= 0 || lastClock <= 0)
      return {lastClock, std::nullopt, false};
    if (passed >= lastClock)
      return {lastClock, std::nullopt, true};
    return {lastClock, lastClock - static_cast<int>(passed), false};
  }
};

} // namespace hooptab
