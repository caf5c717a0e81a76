// What a click on a court means: which field goal, and where it is kept. Knows the zones and the side
// that the team plays on; whoever was clicked and made or missed are the caller's.
#pragma once

#include "court/ZoneMap.h"
#include "game/EventKind.h"
#include "settings/Settings.h"

#include <optional>

namespace hooptab {

struct CourtClick {
  EventCode kind = EventCode::GFG; // or GF3
  court::Place place;              // in left-hand orientation

  // `shown` is in units of the picture as it stands in the panel, turned round for the right-hand side.
  // Nothing on a line between zones or outside the court.
  [[nodiscard]] static std::optional<CourtClick> of(court::Place shown, bool playsRight,
                                                    const ZoneMap& zones);
};

[[nodiscard]] ZoneMap zoneMapOf(const Settings& settings);

} // namespace hooptab
