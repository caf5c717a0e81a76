// Time that a test sets.
#pragma once

#include "recording/TimeSource.h"

namespace hooptab {

class ManualTime : public TimeSource {
 public:
  std::int64_t now = 36'000;
  std::int64_t seconds() override { return now; }
};

} // namespace hooptab
