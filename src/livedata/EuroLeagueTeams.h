// The two teams of a EuroLeague game while it is read: which of them a code means, and who a player's id is.
#pragma once

#include "foreign/ForeignGame.h"
#include "livedata/JsonDocument.h"

#include <map>
#include <optional>
#include <string>

namespace hooptab {

class EuroLeagueTeams {
 public:
  // By the codes of the play-by-play. Throws UnreadableGame where they do not tell two teams.
  EuroLeagueTeams(const Json& playByPlay, PerSide<ForeignTeam>& teams);

  // None: neither.
  [[nodiscard]] std::optional<Side> teamOf(const std::string& code) const;
  // A player who is not known yet is added to his team. `id` may be empty: then he is somebody new.
  Doer player(Side team, const std::string& id, const std::string& name, const std::string& jersey);
  [[nodiscard]] const std::string& idOf(const Doer& player) const;

  // Adds the players of the box score, in its order, with what it says of them and of their teams. False, and
  // nothing is taken, where it is of other teams.
  [[nodiscard]] bool takeBox(const Json& box);

 private:
  void takeTeam(const Json& stats, Side side);

  PerSide<ForeignTeam>& m_teams;
  PerSide<std::map<std::string, int>> m_players = {}; // by id
};

// The code of a team of the box score, which stands with its players alone.
[[nodiscard]] std::string euroLeagueCode(const Json& stats);
// A list of "Family, Given, Family, Given", with the given names first.
[[nodiscard]] std::string euroLeagueReferees(const std::string& text);

} // namespace hooptab
