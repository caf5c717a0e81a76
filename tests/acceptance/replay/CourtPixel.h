// Where on the small court of a panel a person clicks to record a shot of a certain place and kind.
#pragma once

#include "appearance/ZoneMap.h"
#include "storage/EventKind.h"

namespace hooptab {

struct Pixel {
  int x = 0, y = 0; // from the control's corner
};

// The pixel whose place is nearest to the wanted one and counts as this kind. A ReplayFailure when the court
// is too small to have one.
[[nodiscard]] Pixel courtPixel(int width, int height, court::Place wanted, EventCode kind, bool playsRight,
                               const ZoneMap& zones);

} // namespace hooptab
