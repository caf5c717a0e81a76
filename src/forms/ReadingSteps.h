// How far the reading of a form is, in percent, as its watch is told: never going back, though a page may be
// read one way up after the other.
#pragma once

#include "storage/TaskWatch.h"

#include <algorithm>

namespace hooptab {

class ReadingSteps {
 public:
  static constexpr double kMarks = 40; // finding them takes so much, and comes first

  explicit ReadingSteps(const TaskWatch& watch) : m_watch(watch) {} // must outlive it

  // False: the reading is cancelled.
  [[nodiscard]] bool reach(double percent) {
    constexpr std::size_t kWhole = 100;
    m_farthest = std::max(m_farthest, static_cast<std::size_t>(percent));
    m_watch.progress(m_farthest, kWhole);
    return !m_watch.isCancelled();
  }

 private:
  const TaskWatch& m_watch;
  std::size_t m_farthest = 0;
};

} // namespace hooptab
