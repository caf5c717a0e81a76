#include "livedata/NbaLiveRoster.h"

#include <algorithm>
#include <vector>

namespace hooptab {

namespace {

struct RowTeam {
  std::string id;
  std::string abbreviation;
  int homePoints = 0; // by which the home team's score grew when this team scored
  int awayPoints = 0;
};

std::vector<RowTeam> teamsOf(std::span<const Json* const> rows) {
  std::vector<RowTeam> teams;
  int home = 0;
  int away = 0;
  for (const Json* row : rows) {
    const int homeNow = numberOf(*row, "scoreHome", home);
    const int awayNow = numberOf(*row, "scoreAway", away);
    const std::string id = textOf(*row, "teamId");
    if (!NbaLiveRoster::isNobody(id)) {
      auto team = std::ranges::find(teams, id, &RowTeam::id);
      if (team == teams.end() && teams.size() < 2)
        team = teams.insert(teams.end(), {id, textOf(*row, "teamTricode")});
      if (team != teams.end() && textOf(*row, "shotResult") == "Made") {
        team->homePoints += homeNow > home ? 1 : 0;
        team->awayPoints += awayNow > away ? 1 : 0;
      }
    }
    home = homeNow;
    away = awayNow;
  }
  return teams;
}

} // namespace

NbaLiveRoster::NbaLiveRoster(PerSide<ForeignTeam>& teams) : m_teams(teams) {
  for (const Side team : kSides) {
    const std::vector<ForeignPlayer>& players = teams[team].players;
    for (std::size_t i = 0; i < players.size(); ++i)
      m_players.emplace(players[i].id, Doer{team, static_cast<int>(i)});
  }
}

std::optional<Side> NbaLiveRoster::teamOf(std::string_view teamId) const {
  if (isNobody(teamId))
    return std::nullopt;
  for (const Side team : kSides) {
    if (teamId == m_teams[team].id)
      return team;
  }
  return std::nullopt;
}

Doer NbaLiveRoster::player(const std::string& personId, std::optional<Side> team, std::string_view name) {
  if (isNobody(personId))
    return {};
  if (const auto found = m_players.find(personId); found != m_players.end())
    return found->second;
  if (!team)
    return {};
  std::vector<ForeignPlayer>& players = m_teams[*team].players;
  players.push_back({.id = personId, .name = std::string(name)});
  return m_players.emplace(personId, Doer{team, static_cast<int>(players.size()) - 1}).first->second;
}

void listThoseInRows(std::span<const Json* const> rows, ForeignGame& game) {
  const std::vector<RowTeam> named = teamsOf(rows);
  if (named.size() < 2)
    throw UnreadableGame({Text::NbaLiveNoTeams});
  const int firstAtHome = named[0].homePoints - named[0].awayPoints;
  const int secondAtHome = named[1].homePoints - named[1].awayPoints;
  const bool isFirstHome = firstAtHome > secondAtHome;
  const PerSide<RowTeam> teams = {named[isFirstHome ? 1 : 0], named[isFirstHome ? 0 : 1]};
  if (firstAtHome == secondAtHome)
    game.notes.push_back({Text::NbaLiveHomeUnknown, teams[Side::Home].abbreviation});
  for (const Side team : kSides) {
    game.teams[team].id = teams[team].id;
    game.teams[team].abbreviation = teams[team].abbreviation;
    game.teams[team].name = teams[team].abbreviation;
  }
  NbaLiveRoster roster(game.teams);
  for (const Json* row : rows) {
    // A coach has rows too, of his technical fouls.
    if (textOf(*row, "subType") == "technical" || textOf(*row, "actionType") == "ejection")
      continue;
    const std::string name = textOf(*row, "playerNameI");
    roster.player(textOf(*row, "personId"), roster.teamOf(textOf(*row, "teamId")),
                  name.empty() ? textOf(*row, "playerName") : name);
  }
}

} // namespace hooptab
