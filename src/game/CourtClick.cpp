#include "game/CourtClick.h"

namespace hooptab {

std::optional<CourtClick> CourtClick::of(court::Place shown, bool playsRight, const ZoneMap& zones) {
  const court::Place place = playsRight ? court::reflected(shown) : shown;
  switch (zones.shotAt(place)) {
  case ZoneMap::Result::TwoPoints: return CourtClick{EventCode::GFG, place};
  case ZoneMap::Result::ThreePoints: return CourtClick{EventCode::GF3, place};
  case ZoneMap::Result::Ignored: break;
  }
  return std::nullopt;
}

ZoneMap zoneMapOf(const Settings& settings) {
  return {settings.twoPointColour, settings.boxColour, settings.threePointColour};
}

} // namespace hooptab
