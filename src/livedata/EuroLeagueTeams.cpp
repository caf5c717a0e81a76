#include "livedata/EuroLeagueTeams.h"

#include "foreign/ClockForms.h"
#include "foreign/ExchangeNote.h"
#include "foreign/NameForms.h"
#include "livedata/EuroLeagueKinds.h"
#include "livedata/EuroLeagueTime.h"
#include "storage/Module1.h"

#include <algorithm>
#include <cstdlib>
#include <string_view>
#include <vector>

namespace hooptab {

namespace {

// What no game comes to is no figure, so that sums stay within bounds.
std::optional<int> figureOf(const Json& row, std::string_view member) {
  constexpr int kMost = 100'000;
  const std::optional<int> number = numberOf(hooptab::member(row, member));
  return number && std::abs(*number) <= kMost ? number : std::nullopt;
}

OfficialNumbers numbersOfPlayer(const Json& row) {
  OfficialNumbers numbers;
  for (const EuroLeagueFigure& figure : kEuroLeagueFigures) {
    if (const std::optional<int> value = figureOf(row, figure.member))
      numbers[std::string(figure.number)] = {*value};
  }
  if (const std::optional<int> value = figureOf(row, "Plusminus"))
    numbers["plusMinus"] = {*value};
  const std::string minutes = textOf(row, "Minutes");
  if (const std::optional<int> time = clockCentiseconds(minutes))
    numbers["seconds"] = {*time / 100, 1};
  else if (minutes == kEuroLeagueNotPlayed)
    numbers["seconds"] = {0};
  return numbers;
}

// The totals have the team's own row in them.
OfficialNumbers numbersOfTeam(const Json& stats) {
  const Json& own = member(stats, "tmr");
  const Json& totals = member(stats, "totr");
  OfficialNumbers numbers;
  for (const EuroLeagueFigure& figure : kEuroLeagueFigures) {
    if (const std::optional<int> value = figureOf(totals, figure.member))
      numbers[std::string(figure.number)] = {*value - figureOf(own, figure.member).value_or(0)};
  }
  if (const std::optional<int> points = figureOf(totals, "Points"))
    numbers["points"] = {*points};
  for (const char* name : {"OR", "DR", "TO"}) {
    const auto* const figure = std::ranges::find(kEuroLeagueFigures, name, &EuroLeagueFigure::number);
    if (const std::optional<int> value = figureOf(own, figure->member))
      numbers[std::string("teamRow.") + name] = {*value};
  }
  return numbers;
}

std::vector<int> pointsOfPeriods(const Json& row) {
  std::vector<int> points;
  const auto addAll = [&](const std::string& name, int most) {
    for (int number = 1; number <= most; ++number) {
      const std::optional<int> value = figureOf(row, name + std::to_string(number));
      if (!value)
        return;
      points.push_back(*value);
    }
  };
  constexpr int kMostOvertimes = 200;
  addAll("Quarter", kEuroLeagueQuarters);
  if (points.size() == kEuroLeagueQuarters)
    addAll("Extra", kMostOvertimes);
  return points;
}

// The quarters' row of a team, by its name as the box writes it, else by its place.
const Json& quartersOf(const Json& box, const std::string& team, std::size_t place) {
  const Json& rows = listOf(box, "ByQuarter");
  const auto found = std::ranges::find_if(rows, [&](const Json& row) { return textOf(row, "Team") == team; });
  if (found != rows.end())
    return *found;
  return place < rows.size() ? rows[place] : member(box, "");
}

} // namespace

std::string euroLeagueCode(const Json& stats) {
  for (const Json& row : listOf(stats, "PlayersStats")) {
    if (std::string code = textOf(row, "Team"); !code.empty())
      return code;
  }
  return textOf(member(stats, "tmr"), "Team");
}

std::string euroLeagueReferees(const std::string& text) {
  std::vector<std::string_view> parts;
  for (std::size_t begin = 0, end = 0; end != std::string::npos; begin = end + 1) {
    end = text.find(',', begin);
    parts.push_back(Module1::trimmed(std::string_view(text).substr(begin, end - begin)));
  }
  if (parts.size() % 2 != 0) // somebody has one name only
    return text;
  std::string names;
  for (std::size_t i = 0; i < parts.size(); i += 2) {
    names += i == 0 ? "" : ", ";
    names += givenFirst(std::string(parts[i]) + ", " + std::string(parts[i + 1]));
  }
  return names;
}

EuroLeagueTeams::EuroLeagueTeams(const Json& playByPlay, PerSide<ForeignTeam>& teams) : m_teams(teams) {
  for (const bool isHome : {true, false}) {
    const std::string member = isHome ? "CodeTeamA" : "CodeTeamB";
    ForeignTeam& team = m_teams[isHome ? Side::Home : Side::Visitor];
    team.id = textOf(playByPlay, member);
    if (team.id.empty())
      throw UnreadableGame({Text::EuroLeagueWithout, member});
    team.abbreviation = team.id;
    team.name = textOf(playByPlay, isHome ? "TeamA" : "TeamB");
    if (team.name.empty())
      team.name = team.id;
  }
  if (m_teams[Side::Visitor].id == m_teams[Side::Home].id)
    throw UnreadableGame({Text::EuroLeagueWithout, "CodeTeamB"});
}

std::optional<Side> EuroLeagueTeams::teamOf(const std::string& code) const {
  return code == m_teams[Side::Visitor].id ? std::optional(Side::Visitor)
         : code == m_teams[Side::Home].id  ? std::optional(Side::Home)
                                           : std::nullopt;
}

Doer EuroLeagueTeams::player(Side team, const std::string& id, const std::string& name,
                             const std::string& jersey) {
  std::vector<ForeignPlayer>& players = m_teams[team].players;
  const int next = static_cast<int>(players.size());
  if (!id.empty()) {
    const auto [known, isNew] = m_players[team].emplace(id, next);
    if (!isNew)
      return {team, known->second};
  }
  ForeignPlayer player;
  player.id = id;
  player.jersey = jersey;
  player.name = givenFirst(name);
  players.push_back(std::move(player));
  return {team, next};
}

const std::string& EuroLeagueTeams::idOf(const Doer& player) const {
  return m_teams[*player.team].players[static_cast<std::size_t>(player.player)].id;
}

bool EuroLeagueTeams::takeBox(const Json& box) {
  const Json& both = listOf(box, "Stats");
  for (const Json& stats : both) {
    if (!teamOf(euroLeagueCode(stats)))
      return false;
  }
  for (std::size_t place = 0; place < both.size(); ++place) {
    const Side side = *teamOf(euroLeagueCode(both[place]));
    takeTeam(both[place], side);
    m_teams[side].pointsOfPeriod = pointsOfPeriods(quartersOf(box, textOf(both[place], "Team"), place));
  }
  return !both.empty();
}

void EuroLeagueTeams::takeTeam(const Json& stats, Side side) {
  ForeignTeam& team = m_teams[side];
  team.coach = givenFirst(textOf(stats, "Coach"));
  team.official = numbersOfTeam(stats);
  for (const Json& row : listOf(stats, "PlayersStats")) {
    const Doer doer = player(side, textOf(row, "Player_ID"), textOf(row, "Player"), textOf(row, "Dorsal"));
    ForeignPlayer& known = team.players[static_cast<std::size_t>(doer.player)];
    known.isStarter = flagOf(row, "IsStarter");
    known.official = numbersOfPlayer(row);
  }
}

} // namespace hooptab
