// Where the game clock gets its time from, behind one small interface, so that a test plays a whole game in
// no time.
#pragma once

#include <cstdint>

namespace hooptab {

class TimeSource {
 public:
  virtual ~TimeSource() = default;
  // Whole seconds since the midnight before the program started. Grows through later midnights and through
  // sleep of the machine, and never jumps.
  virtual std::int64_t seconds() = 0;
  // Milliseconds of UTC since 1970, by a clock that never jumps, laid on UTC when it was asked to last; 0
  // where nobody knows.
  virtual std::int64_t utcMilliseconds() { return 0; }
  virtual void layOnUtc() {}
};

class SystemTime : public TimeSource {
 public:
  SystemTime();
  std::int64_t seconds() override;
  std::int64_t utcMilliseconds() override;
  void layOnUtc() override;

 private:
  std::int64_t m_offsetNanoseconds;  // from the time since boot to that since midnight
  std::int64_t m_utcNanoseconds = 0; // and to UTC
};

} // namespace hooptab
