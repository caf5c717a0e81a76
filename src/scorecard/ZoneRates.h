// What a team or a player makes of the shots from each zone of the court, beside an average: points per shot,
// and how far above or below. Few shots tell little and are said to be few. Draws nothing.
#pragma once

#include "scorecard/ShotChart.h"

#include <string>
#include <vector>

namespace hooptab {

struct ZoneRate {
  static constexpr int kFew = 3; // shots up to which a zone tells little

  court::ChartZone zone = court::ChartZone::Paint;
  std::string fraction;      // "5/12"
  std::string pointsPerShot; // "0.83"
  double aboveAverage = 0;   // points per shot more than the average of the same zone; negative: fewer
  bool isFew = false;
};
// Zones without shots are left out; where the average has none, nothing is above it.
[[nodiscard]] std::vector<ZoneRate> zoneRates(const ShotSums& sums, const ShotSums& average);

} // namespace hooptab
