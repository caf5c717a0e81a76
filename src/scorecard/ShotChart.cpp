#include "scorecard/ShotChart.h"

#include "storage/Module1.h"

#include <algorithm>
#include <iterator>
#include <limits>

namespace hooptab {

namespace {

using court::ChartZone;
using court::Place;

// The whole-unit places of two-point zones that touch a three-point zone, and the other way round. Whatever
// the shape of the line between the two, the shortest way to the other kind ends at one of them.
class ZoneBorder {
 public:
  ZoneBorder() {
    for (int x = 0; x <= static_cast<int>(court::kLength); ++x) {
      for (int y = 0; y <= static_cast<int>(court::kWidth); ++y) {
        const bool isThree = isThreeAt(x, y);
        if (isThreeAt(x - 1, y) != isThree || isThreeAt(x + 1, y) != isThree ||
            isThreeAt(x, y - 1) != isThree || isThreeAt(x, y + 1) != isThree)
          m_places[isThree ? 1 : 0].push_back(placeAt(x, y));
      }
    }
  }
  [[nodiscard]] ChartZone nearestZone(Place place, bool isThree) const {
    Place nearest = place;
    double shortest = std::numeric_limits<double>::max();
    for (const Place border : m_places[isThree ? 1 : 0]) {
      const double dx = border.x - place.x;
      const double dy = border.y - place.y;
      if (dx * dx + dy * dy < shortest) {
        shortest = dx * dx + dy * dy;
        nearest = border;
      }
    }
    return chartZone(nearest);
  }

 private:
  static Place placeAt(int x, int y) {
    return court::atEdge({static_cast<double>(x), static_cast<double>(y)});
  }
  static bool isThreeAt(int x, int y) { return isThreePointZone(chartZone(placeAt(x, y))); }

  std::vector<Place> m_places[2];
};

void add(ZoneSum& sum, const Shot& shot) {
  ++sum.attempted;
  sum.made += shot.isMade ? 1 : 0;
}

} // namespace

std::vector<Shot> selectedShots(const GameState& state, const ShotSelection& selection) {
  std::vector<Shot> shots;
  std::ranges::copy_if(state.shots, std::back_inserter(shots), [&](const Shot& shot) {
    const int entry = selection.view == BoxView::Players ? shot.player : shot.line;
    return shot.team == selection.team &&
           (selection.all || std::ranges::find(selection.entries, entry) != selection.entries.end());
  });
  return shots;
}

ChartZone shotZone(Place place, bool isThree) {
  const Place drawn = court::atEdge(place);
  const ChartZone zone = chartZone(drawn);
  if (isThreePointZone(zone) == isThree)
    return zone;
  static const ZoneBorder kBorder;
  return kBorder.nearestZone(drawn, isThree);
}

ShotSums shotSums(const std::vector<Shot>& shots) {
  ShotSums sums;
  for (const Shot& shot : shots)
    add(shot.hasPlace ? sums.zones[static_cast<std::size_t>(shotZone({shot.x, shot.y}, shot.isThree))]
                      : sums.withoutPlace,
        shot);
  return sums;
}

std::string fractionText(const ZoneSum& sum) {
  return std::to_string(sum.made) + '/' + std::to_string(sum.attempted);
}

std::string shotWords(const Shot& shot, const Game& game, const EventWords& words) {
  return words.periodText(game.events[shot.eventIndex].period) + "  " + words.clock(shot.eventIndex) + "  " +
         words.words(shot.eventIndex);
}

std::vector<ZoneWords> zoneWords(const ShotSums& sums) {
  int most = 0;
  for (const ZoneSum& sum : sums.zones)
    most = std::max(most, sum.attempted);
  std::vector<ZoneWords> words;
  for (std::size_t zone = 0; zone < sums.zones.size(); ++zone) {
    const ZoneSum& sum = sums.zones[zone];
    if (sum.attempted > 0)
      words.push_back({static_cast<ChartZone>(zone), fractionText(sum),
                       Module1::percentText(sum.made, sum.attempted),
                       static_cast<double>(sum.attempted) / most});
  }
  return words;
}

} // namespace hooptab
