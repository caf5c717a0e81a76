// Who is who in a play-by-play, by the ids that its rows name: both teams, and their players. Whoever a row
// names and nobody listed becomes a player of his team. Counts nothing.
#pragma once

#include "foreign/ForeignGame.h"
#include "livedata/JsonDocument.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>

namespace hooptab {

class NbaLiveRoster {
 public:
  // Of the teams as they are listed already.
  explicit NbaLiveRoster(PerSide<ForeignTeam>& teams);

  // Nothing: none of both.
  [[nodiscard]] std::optional<Side> teamOf(std::string_view teamId) const;
  [[nodiscard]] bool isListed(const std::string& personId) const { return m_players.contains(personId); }
  // Nobody for the id of none, and where there is no such team to add him to.
  Doer player(const std::string& personId, std::optional<Side> team, std::string_view name);

  // "0" and nothing stand for the team itself.
  [[nodiscard]] static bool isNobody(std::string_view id) { return id.empty() || id == "0"; }

 private:
  PerSide<ForeignTeam>& m_teams;
  std::unordered_map<std::string, Doer> m_players;
};

// Teams and players of a game without a box score, as its rows name them: ids, and names as far as the rows
// have them. Whose points became the home team's score plays at home. Throws UnreadableGame where there are
// no two teams.
void listThoseInRows(std::span<const Json* const> rows, ForeignGame& game);

} // namespace hooptab
