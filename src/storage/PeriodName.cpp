#include "storage/PeriodName.h"

namespace hooptab {

namespace {

constexpr int kOvertime = 1022;

} // namespace

std::string periodName(int period, int regularPeriods, const Texts& texts) {
  if (regularPeriods < 1 || period <= regularPeriods)
    return std::to_string(period);
  const int overtime = period - regularPeriods;
  return std::string(texts.text(kOvertime)) + (overtime == 1 ? "" : std::to_string(overtime));
}

} // namespace hooptab
