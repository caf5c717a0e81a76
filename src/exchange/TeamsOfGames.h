// The teams and players of games, for the team editor: what it lacks, and the way there. A team is known by
// its abbreviation or its name, a player by number or name; nothing that is there is changed.
#pragma once

#include "game/GameFile.h"
#include "settings/Texts.h"
#include "teams/TeamStore.h"

#include <cstddef>
#include <string>
#include <vector>

namespace hooptab {

class TeamsOfGames {
 public:
  // Both sides; a side that is its own one player has none.
  void add(const Game& game);

  struct Addition {
    int id = 0; // of the team that is there; 0: a new one
    TeamRecord team = {};
    std::vector<TeamPlayer> players = {};  // that it lacks
    std::vector<std::string> leftOut = {}; // "LYNX 7 Ana Roy": whose number is another's, or cannot be kept
  };
  // A line for each team that lacks something, or leaves somebody out.
  [[nodiscard]] std::vector<Addition> lackingIn(TeamStore& store) const;

 private:
  struct Team {
    TeamRecord record;
    std::vector<RosterPlayer> players;
  };
  void addTeam(const Game& game, Side side);

  std::vector<Team> m_teams;
};

struct AdditionCounts {
  std::size_t teams = 0; // new ones
  std::size_t players = 0;
};
[[nodiscard]] AdditionCounts countsOf(const std::vector<TeamsOfGames::Addition>& additions);
// False where a team could not be written; those before it are.
[[nodiscard]] bool addTo(TeamStore& store, const std::vector<TeamsOfGames::Addition>& additions,
                         const Texts& texts);

} // namespace hooptab
