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
};

class SystemTime : public TimeSource {
 public:
  SystemTime();
  std::int64_t seconds() override;

 private:
  std::int64_t m_offsetNanoseconds; // from the time since boot to that since midnight
};

} // namespace hooptab
