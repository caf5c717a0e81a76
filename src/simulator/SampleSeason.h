// A season of simulated games: who meets whom, when, where, who keeps the statistics and what he notes. The
// same number of games and the same seed give the same season.
#pragma once

#include "simulator/GameSimulator.h"
#include "simulator/SampleTeams.h"

#include <array>
#include <cstdint>
#include <optional>

namespace hooptab {

class SampleSeason {
 public:
  SampleSeason(int games, std::uint64_t seed);

  // What a game should bring.
  struct Wish {
    bool overtime = false;
    std::optional<GameSimulator::Interruption> interruption;
  };
  // `index` from 0, in the order of the dates.
  [[nodiscard]] SimulatedGame game(int index) const { return game(index, {}); }
  [[nodiscard]] SimulatedGame game(int index, const Wish& wish) const;

 private:
  void describe(SimulatedGame& game, int index) const;

  std::array<SampleTeam, kSampleTeamCount> m_teams;
  int m_games;
  std::uint64_t m_seed;
};

} // namespace hooptab
