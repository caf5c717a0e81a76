// Which shots a chart shows, and their sums by zone of the court. Draws nothing.
#pragma once

#include "court/CourtGeometry.h"
#include "game/EventWords.h"
#include "game/GameState.h"
#include "game/Side.h"
#include "scorecard/BoxScore.h"

#include <array>
#include <string>
#include <vector>

namespace hooptab {

// The shots of one team, of the chosen rows: player entries in the view by player; line entries in the view
// by line, where a mark means the team's shots while that line was on court. Includes shots without a place.
struct ShotSelection {
  Side team = Side::Visitor;
  BoxView view = BoxView::Players;
  bool all = true; // else only `entries`
  std::vector<int> entries;
};
[[nodiscard]] std::vector<Shot> selectedShots(const GameState& state, const ShotSelection& selection);

struct ZoneSum {
  int made = 0;
  int attempted = 0;
};
struct ShotSums {
  std::array<ZoneSum, court::kChartZoneCount> zones = {};
  ZoneSum withoutPlace;
};
// The zone in which a shot with a place counts: that of its place; one recorded as two (or three) points on a
// place of the other kind counts in the nearest zone of its own kind, so that zone sums agree with the box
// score.
[[nodiscard]] court::ChartZone shotZone(court::Place place, bool isThree);
[[nodiscard]] ShotSums shotSums(const std::vector<Shot>& shots);

// What a chart writes into a zone, and how strongly it is tinted: 1 where most shots were taken. Zones
// without shots are left out.
struct ZoneWords {
  court::ChartZone zone = court::ChartZone::Paint;
  std::string fraction; // "5/12"
  std::string percent;  // "41.7%"
  double strength = 0;
};
[[nodiscard]] std::vector<ZoneWords> zoneWords(const ShotSums& sums);
[[nodiscard]] std::string fractionText(const ZoneSum& sum);
// Period, clock and words of a shot of that game.
[[nodiscard]] std::string shotWords(const Shot& shot, const Game& game, const EventWords& words);

} // namespace hooptab
