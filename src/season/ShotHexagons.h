// A map of shots as hexagons: how often from each, and with how many points a shot against what all take from
// there. Draws nothing.
#pragma once

#include "season/SeasonShots.h"

#include <optional>
#include <vector>

namespace hooptab {

struct ShotHexagon {
  court::Place middle;
  int attempted = 0;
  int points = 0;
  double usualPoints = 0; // that all get for as many shots of the same zones

  // Points a shot above what is usual, below 0 under it.
  [[nodiscard]] double difference() const { return (points - usualPoints) / attempted; }
};

class ShotHexagons {
 public:
  // From the middle to a corner, in court units.
  static constexpr double kRadius = 6;

  // `usual`: all shots that his are compared with.
  explicit ShotHexagons(const ShotSums& usual) : m_usual(usual) {}

  void add(const SeasonShot& shot);
  // In no order.
  const std::vector<ShotHexagon>& hexagons() const { return m_hexagons; }
  [[nodiscard]] int mostAttempts() const;

 private:
  ShotSums m_usual;
  std::vector<ShotHexagon> m_hexagons;
};

[[nodiscard]] ShotHexagons hexagonsOfPlayer(const GameCatalogue& catalogue,
                                            std::span<const GameResult> results, SeasonId player,
                                            const ShotSums& usual);
// `games` are places in the catalogue's games.
[[nodiscard]] ShotHexagons hexagonsOfTeam(const GameCatalogue& catalogue, std::span<const std::size_t> games,
                                          SeasonId team, const ShotSums& usual);

} // namespace hooptab
