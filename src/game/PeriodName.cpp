#include "game/PeriodName.h"

namespace hooptab {

std::string periodName(int period, int regularPeriods, const Texts& texts) {
  if (regularPeriods < 1 || period <= regularPeriods)
    return std::to_string(period);
  return std::string(texts.text(Text::Overtime)) + std::to_string(period - regularPeriods);
}

} // namespace hooptab
