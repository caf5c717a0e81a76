#include "tools/replay/CourtPixel.h"

#include "game/CourtClick.h"
#include "tools/replay/Program.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace hooptab {

std::optional<court::Place> placeShownAt(int width, int height, Pixel pixel) {
  // The picture fills the control but for a small edge, in its own proportions.
  constexpr double kEdge = 2;
  const double scale = std::min((width - 2 * kEdge) / court::kLength, (height - 2 * kEdge) / court::kWidth);
  const double left = (width - court::kLength * scale) / 2;
  const double top = (height - court::kWidth * scale) / 2;
  const court::Place shown{std::floor((pixel.x - left) / scale), std::floor((pixel.y - top) / scale)};
  return shown == court::atEdge(shown) ? std::optional(shown) : std::nullopt;
}

Pixel courtPixel(int width, int height, court::Place wanted, EventCode kind, bool playsRight,
                 const ZoneMap& zones) {
  Pixel nearest;
  double least = std::numeric_limits<double>::max();
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) {
      const auto shown = placeShownAt(width, height, {x, y});
      if (!shown)
        continue;
      const auto click = CourtClick::of(*shown, playsRight, zones);
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
