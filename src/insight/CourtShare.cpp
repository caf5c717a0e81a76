#include "insight/CourtShare.h"

namespace hooptab {

CourtShare& CourtShare::operator+=(const CourtShare& added) {
  seconds += added.seconds;
  for (const Side team : kSides) {
    possessions[team] += added.possessions[team];
    for (std::size_t i = 0; i < kCounterCount; ++i)
      counters[team].counts[i] += added.counters[team].counts[i];
  }
  return *this;
}

CourtShare& CourtShare::operator-=(const CourtShare& taken) {
  seconds -= taken.seconds;
  for (const Side team : kSides) {
    possessions[team] -= taken.possessions[team];
    for (std::size_t i = 0; i < kCounterCount; ++i)
      counters[team].counts[i] -= taken.counters[team].counts[i];
  }
  return *this;
}

} // namespace hooptab
