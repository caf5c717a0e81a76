// Time that a test sets.
#pragma once

#include "recording/TimeSource.h"

namespace hooptab {

class ManualTime : public TimeSource {
 public:
  std::int64_t now = 36'000;
  std::int64_t utcAtZero = 0; // milliseconds; 0: nobody knows
  std::int64_t seconds() override { return now; }
  std::int64_t utcMilliseconds() override { return utcAtZero == 0 ? 0 : utcAtZero + 1000 * now; }
};

} // namespace hooptab
