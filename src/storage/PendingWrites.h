// What a disk has not taken yet: how many changes of one file wait, since when, why, and when they are tried
// again. They go to the disk in the order in which they were made, so that nothing overtakes an older one;
// one queue per file, so that an unwritable file holds up no other. Is told the time and keeps no timer; what
// the user is told is the window's affair.
#pragma once

#include "storage/ProfileBatch.h"
#include "storage/StorageError.h"

#include <cstddef>
#include <cstdint>
#include <deque>
#include <functional>

namespace hooptab {

class PendingWrites {
 public:
  // Between two tries, and as `now` below, in nanoseconds: FileSystem::nowNanoseconds.
  static constexpr std::int64_t kRetryInterval = 2'000'000'000;

  // Brings a batch to the disk; called again later when that fails.
  using Write = std::function<WriteResult(const ProfileBatch& batch)>;
  struct Waiting {
    ProfileBatch batch;
    Write write;
  };

  // Tries at once when nothing older waits. Returns whether everything is on disk.
  bool write(ProfileBatch batch, Write write, std::int64_t now);
  // Tries what waits, oldest first, up to the first failure. Returns whether everything is on disk.
  bool retry(std::int64_t now);

  // For an owner that brings all that waits to the disk in one write of its own: one change more; the disk
  // said no; everything is there.
  void add();
  void refuse(const StorageError& why, std::int64_t now);
  void clear();

  bool isEmpty() const { return m_waiting.empty(); }
  std::size_t size() const { return m_waiting.size(); }
  const std::deque<Waiting>& waiting() const { return m_waiting; } // oldest first
  // Of the last failure; none when nothing waits, or not for the disk.
  const StorageError& why() const { return m_why; }
  // How long from `now` to the next try; whatever the clock was set to meanwhile, no longer than the
  // interval.
  [[nodiscard]] std::int64_t untilRetry(std::int64_t now) const;

 private:
  std::deque<Waiting> m_waiting;
  StorageError m_why;
  std::int64_t m_since = 0; // the first failure, once something waits
  bool m_isRefused = false;
};

} // namespace hooptab
