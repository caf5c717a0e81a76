#include "CourtPixel.h"

#include "Program.h"
#include "appearance/CourtClick.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace hooptab {

Pixel courtPixel(int width, int height, court::Place wanted, EventCode kind, bool playsRight,
                 const ZoneMap& zones) {
  // The picture fills the control but for a small edge, in its own proportions.
  constexpr double kEdge = 2;
  const double scale = std::min((width - 2 * kEdge) / court::kLength, (height - 2 * kEdge) / court::kWidth);
  const double left = (width - court::kLength * scale) / 2;
  const double top = (height - court::kWidth * scale) / 2;
  Pixel nearest;
  double least = std::numeric_limits<double>::max();
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) {
      const court::Place shown{std::floor((x - left) / scale), std::floor((y - top) / scale)};
      if (shown != court::atEdge(shown)) // outside
        continue;
      const auto click = CourtClick::of(shown, playsRight, zones);
      if (!click || click->kind != kind)
        continue;
      const double distance = std::hypot(click->place.x - wanted.x, click->place.y - wanted.y);
      if (distance < least) {
        least = distance;
        nearest = {x, y};
      }
    }
  }
  if (least == std::numeric_limits<double>::max())
    throw ReplayFailure("the court has no pixel for the shot");
  return nearest;
}

} // namespace hooptab
