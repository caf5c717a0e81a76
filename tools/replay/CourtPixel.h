// Where on the small court of a panel a person clicks to record a shot of a certain place and kind.
#pragma once

#include "court/ZoneMap.h"
#include "game/EventKind.h"

#include <optional>

namespace hooptab {

struct Pixel {
  int x = 0, y = 0; // from the control's corner
};

// The place of the court that a pixel of the control shows, not yet turned; nothing outside the picture.
[[nodiscard]] std::optional<court::Place> placeShownAt(int width, int height, Pixel pixel);

// The pixel whose place is nearest to the wanted one and counts as this kind. A ReplayFailure when the court
// is too small to have one.
[[nodiscard]] Pixel courtPixel(int width, int height, court::Place wanted, EventCode kind, bool playsRight,
                               const ZoneMap& zones);

} // namespace hooptab
