// Whole seconds for the clocks of a file that counts hundredths, event by event: never rising where the
// file's own do not. Where players come and go the second is taken, below or above, with which their times
// add up best: the whole seconds of each are then nearly those that he has in the file.
#pragma once

#include "game/Side.h"

#include <cstddef>
#include <span>
#include <vector>

namespace hooptab {

class ClockSequence {
 public:
  explicit ClockSequence(PerSide<std::size_t> players);

  void beginPeriod(int centiseconds);
  // Of an event at that clock.
  [[nodiscard]] int seconds(int centiseconds);
  struct Change {
    Side team = Side::Visitor;
    int player = 0;
    bool comes = false;
  };
  // Of a line-up's change.
  [[nodiscard]] int seconds(int centiseconds, std::span<const Change> changes);

 private:
  [[nodiscard]] int wholeSeconds(int centiseconds, std::span<const Change> changes);
  [[nodiscard]] double surplusWith(const Change& change, int seconds, int centiseconds) const;

  // Seconds that a player has more than in the file, by team and place in its list.
  PerSide<std::vector<double>> m_surplus;
  int m_centiseconds = 0; // of the last event
  int m_seconds = 0;
};

} // namespace hooptab
