// What work on a thread and whoever waits for it tell each other: how far the work has come, whether it is
// still wanted, and whether it can still be stopped. Copies are one and the same watch, and may be asked and
// told from any thread; one that nobody else has a copy of is for work that nobody watches. Starts and stops
// nothing itself.
#pragma once

#include <algorithm>
#include <atomic>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <memory>

namespace hooptab {

class TaskWatch {
 public:
  struct Progress {
    int done = 0;
    int total = 0; // 0: not known yet
    friend bool operator==(const Progress&, const Progress&) = default;
  };

  // --- The side of the work; cheap enough for each round of a loop.

  bool isCancelled() const { return m_shared->state.load(std::memory_order_relaxed) == State::Cancelled; }
  void progress(std::size_t done, std::size_t total) const {
    m_shared->progress.store(packed(done) | packed(total) << kBits, std::memory_order_relaxed);
  }
  // One more is done; never beyond the total that was told. For several threads that share the work, too.
  void advance() const { m_shared->progress.fetch_add(1, std::memory_order_relaxed); }
  // From here on what has begun can only be finished. False: it was cancelled before, and must not begin.
  [[nodiscard]] bool commit() const {
    State expected = State::Wanted;
    return m_shared->state.compare_exchange_strong(expected, State::Committed) ||
           expected == State::Committed;
  }

  // --- The side of whoever waits.

  void cancel() const { // nothing once it is too late
    State expected = State::Wanted;
    m_shared->state.compare_exchange_strong(expected, State::Cancelled);
  }
  bool canBeCancelled() const { return m_shared->state.load() == State::Wanted; }
  Progress progress() const {
    const std::uint64_t both = m_shared->progress.load(std::memory_order_relaxed);
    return {static_cast<int>(both & kMost), static_cast<int>(both >> kBits)};
  }

 private:
  enum class State : std::uint8_t { Wanted, Cancelled, Committed };
  struct Shared {
    std::atomic<State> state = State::Wanted;
    std::atomic<std::uint64_t> progress = 0; // both numbers at once: they are never of two moments
  };
  static constexpr int kBits = 32;
  static constexpr std::uint64_t kMost = std::numeric_limits<int>::max();
  static std::uint64_t packed(std::size_t number) { return std::min<std::uint64_t>(number, kMost); }

  std::shared_ptr<Shared> m_shared = std::make_shared<Shared>();
};

} // namespace hooptab
