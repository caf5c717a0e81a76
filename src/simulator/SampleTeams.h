// The teams of a first start that have players, as the simulator needs them: who may play and where.
#pragma once

#include "game/Roster.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace hooptab {

inline constexpr std::size_t kSampleTeamCount = 4;

struct SampleTeam {
  int id = 0;
  std::string abbreviation, category, name; // the category keeps its trailing blank
  int bonus = 0;
  int personalFoulLimit = 0;
  int technicalFoulLimit = 0;
  std::uint32_t colour = 0;
  std::vector<RosterPlayer> players;

  std::string listText() const { return abbreviation + "-" + category; }
};

[[nodiscard]] std::array<SampleTeam, kSampleTeamCount> sampleTeams();

} // namespace hooptab
