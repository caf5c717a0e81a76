// From where shots are taken. A place is whole units, as games store it, and never on a line: the colour zone
// under it is always the one that gave the shot its code.
#pragma once

#include "court/CourtGeometry.h"
#include "simulator/Random.h"

namespace hooptab {

enum class ShotArea { Paint, MidRange, Corner, Wing, Top };

[[nodiscard]] court::Place shotPlace(ShotArea area, Random& random);

} // namespace hooptab
