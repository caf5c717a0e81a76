#include "season/ShotHexagons.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace hooptab {

namespace {

double distance(court::Place one, court::Place other) {
  return std::hypot(one.x - other.x, one.y - other.y);
}

// Of the hexagon that holds a place. The middles are two grids of rectangles, one between the other.
court::Place middleOf(court::Place place) {
  constexpr double kRow = 3 * ShotHexagons::kRadius; // between rows of one grid, along x
  const double column = std::numbers::sqrt3 * ShotHexagons::kRadius;
  const auto nearest = [&](double shift) {
    return court::Place{(std::round(place.x / kRow - shift) + shift) * kRow,
                        (std::round(place.y / column - shift) + shift) * column};
  };
  const court::Place even = nearest(0);
  const court::Place odd = nearest(0.5);
  return distance(place, odd) < distance(place, even) ? odd : even;
}

} // namespace

void ShotHexagons::add(const SeasonShot& shot) {
  if (!shot.hasPlace)
    return;
  const court::Place place = {static_cast<double>(shot.x), static_cast<double>(shot.y)};
  const court::Place middle = middleOf(place);
  auto found = std::ranges::find(m_hexagons, middle, &ShotHexagon::middle);
  if (found == m_hexagons.end()) {
    m_hexagons.push_back({middle, 0, 0, 0});
    found = std::prev(m_hexagons.end());
  }
  const int worth = shot.isThree ? 3 : 2;
  const ZoneSum& usual = m_usual.zones.at(static_cast<std::size_t>(shotZone(place, shot.isThree)));
  ++found->attempted;
  found->points += shot.isMade ? worth : 0;
  found->usualPoints += usual.attempted == 0 ? 0 : static_cast<double>(worth) * usual.made / usual.attempted;
}

int ShotHexagons::mostAttempts() const {
  const auto most = std::ranges::max_element(m_hexagons, {}, &ShotHexagon::attempted);
  return most == m_hexagons.end() ? 0 : most->attempted;
}

ShotHexagons hexagonsOfPlayer(const GameCatalogue& catalogue, std::span<const GameResult> results,
                              SeasonId player, const ShotSums& usual) {
  ShotHexagons hexagons(usual);
  for (const GameResult& result : results) {
    const ListedGame& game = catalogue.games()[result.game];
    for (const SeasonShot& shot : game.shots) {
      if (game.players[shot.player].id == player)
        hexagons.add(shot);
    }
  }
  return hexagons;
}

ShotHexagons hexagonsOfTeam(const GameCatalogue& catalogue, std::span<const std::size_t> games, SeasonId team,
                            const ShotSums& usual) {
  ShotHexagons hexagons(usual);
  for (const std::size_t place : games) {
    const ListedGame& game = catalogue.games()[place];
    for (const SeasonShot& shot : game.shots) {
      if (game.team[game.players[shot.player].side] == team)
        hexagons.add(shot);
    }
  }
  return hexagons;
}

} // namespace hooptab
