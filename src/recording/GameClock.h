// The clock of a period: seconds that remain, counted from the time of day at the last start and never from
// ticks, so that a late tick makes nothing drift.
#pragma once

#include <algorithm>
#include <cstdint>

namespace hooptab {

class GameClock {
 public:
  void set(int seconds) { m_atStart = std::max(seconds, 0); } // only while it stands
  void start(std::int64_t now) {
    m_startTime = now;
    m_isRunning = true;
  }
  void stop(std::int64_t now) {
    m_atStart = remaining(now);
    m_isRunning = false;
  }
  bool isRunning() const { return m_isRunning; }
  // Never below 0, and never more than at the start.
  int remaining(std::int64_t now) const {
    if (!m_isRunning)
      return m_atStart;
    const std::int64_t elapsed = std::max<std::int64_t>(now - m_startTime, 0);
    return elapsed >= m_atStart ? 0 : m_atStart - static_cast<int>(elapsed);
  }

  int beyondEnd(std::int64_t now) const {
    const std::int64_t elapsed = m_isRunning ? now - m_startTime : 0;
    return static_cast<int>(std::max<std::int64_t>(elapsed - m_atStart, 0));
  }

  friend bool operator==(const GameClock&, const GameClock&) = default;

 private:
  int m_atStart = 0;
  std::int64_t m_startTime = 0;
  bool m_isRunning = false;
};

} // namespace hooptab
