// How far the making of a file has come, and whether it is still wanted: shared by the thread that makes it
// and the window that waits for it.
#pragma once

#include <atomic>

namespace hooptab {

struct ReportWatch {
  std::atomic<int> done = 0; // pages or rows
  std::atomic<int> most = 0; // 0: not known yet
  std::atomic<bool> isCancelled = false;
  std::atomic<bool> isPastCancelling = false; // what has begun can only be finished
};

// For makers whose work need not be watched: null is a watch that nobody looks at.
inline bool isCancelled(const ReportWatch* watch) {
  return watch != nullptr && watch->isCancelled;
}
inline void expect(ReportWatch* watch, int most) {
  if (watch != nullptr) {
    watch->done = 0;
    watch->most = most;
  }
}
inline void advance(ReportWatch* watch) {
  if (watch != nullptr)
    ++watch->done;
}

} // namespace hooptab
