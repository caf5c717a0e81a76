#include "season/SeasonShots.h"

#include <array>

namespace hooptab {

namespace {

// Zones by whole court units: a season asks for millions of them, and finding one takes geometry.
class ZoneTable {
 public:
  ZoneTable() {
    for (std::size_t i = 0; i < m_zones.size(); ++i) {
      const std::size_t place = i / 2;
      m_zones[i] =
          shotZone({static_cast<double>(place / kRows), static_cast<double>(place % kRows)}, i % 2 == 1);
    }
  }
  court::ChartZone zone(const SeasonShot& shot) const {
    return m_zones.at((shot.x * kRows + shot.y) * 2 + (shot.isThree ? 1 : 0));
  }

 private:
  static constexpr std::size_t kColumns = static_cast<std::size_t>(court::kLength) + 1;
  static constexpr std::size_t kRows = static_cast<std::size_t>(court::kWidth) + 1;
  std::array<court::ChartZone, kColumns* kRows* 2> m_zones = {};
};

// Adds the shots of a game that belong to rows which are wanted.
template <typename IsWanted>
void addShots(ShotSums& sums, const ListedGame& game, IsWanted isWanted) {
  static const ZoneTable kZones;
  for (const SeasonShot& shot : game.shots) {
    if (!isWanted(game.players[shot.player]))
      continue;
    ZoneSum& sum =
        shot.hasPlace ? sums.zones[static_cast<std::size_t>(kZones.zone(shot))] : sums.withoutPlace;
    ++sum.attempted;
    sum.made += shot.isMade ? 1 : 0;
  }
}

} // namespace

ShotSums shotsOfGames(const GameCatalogue& catalogue, std::span<const std::size_t> games) {
  ShotSums sums;
  for (const std::size_t game : games)
    addShots(sums, catalogue.games()[game], [](const GameRow&) { return true; });
  return sums;
}

ShotSums shotsOfTeam(const GameCatalogue& catalogue, std::span<const std::size_t> games, SeasonId team) {
  ShotSums sums;
  for (const std::size_t index : games) {
    const ListedGame& game = catalogue.games()[index];
    if (game.team[Side::Visitor] == team || game.team[Side::Home] == team)
      addShots(sums, game, [&](const GameRow& row) { return game.team[row.side] == team; });
  }
  return sums;
}

ShotSums shotsAgainst(const GameCatalogue& catalogue, std::span<const std::size_t> games, SeasonId team) {
  ShotSums sums;
  for (const std::size_t index : games) {
    const ListedGame& game = catalogue.games()[index];
    addShots(sums, game, [&](const GameRow& row) { return game.team[otherSide(row.side)] == team; });
  }
  return sums;
}

ShotSums shotsOfPlayer(const GameCatalogue& catalogue, std::span<const GameResult> results, SeasonId player) {
  ShotSums sums;
  for (const GameResult& result : results)
    addShots(sums, catalogue.games()[result.game], [&](const GameRow& row) { return row.id == player; });
  return sums;
}

double differenceInPoints(const ZoneSum& zone, const ZoneSum& average) {
  if (zone.attempted == 0 || average.attempted == 0)
    return 0;
  constexpr double kPercent = 100;
  return kPercent * zone.made / zone.attempted - kPercent * average.made / average.attempted;
}

} // namespace hooptab
