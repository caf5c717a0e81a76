#include "scorecard/ZoneRates.h"

#include <array>
#include <cstdio>

namespace hooptab {

namespace {

double pointsPerShot(const ZoneSum& sum, court::ChartZone zone) {
  return static_cast<double>(sum.made * (court::isThreePointZone(zone) ? 3 : 2)) / sum.attempted;
}

} // namespace

std::vector<ZoneRate> zoneRates(const ShotSums& sums, const ShotSums& average) {
  std::vector<ZoneRate> rates;
  for (std::size_t i = 0; i < sums.zones.size(); ++i) {
    const ZoneSum& sum = sums.zones[i];
    if (sum.attempted == 0)
      continue;
    const auto zone = static_cast<court::ChartZone>(i);
    const double points = pointsPerShot(sum, zone);
    std::array<char, 16> text = {};
    std::snprintf(text.data(), text.size(), "%.2f", points);
    const ZoneSum& usual = average.zones[i];
    rates.push_back({zone, fractionText(sum), text.data(),
                     usual.attempted > 0 ? points - pointsPerShot(usual, zone) : 0,
                     sum.attempted <= ZoneRate::kFew});
  }
  return rates;
}

} // namespace hooptab
