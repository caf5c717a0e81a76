#include "catalogue/CatalogueMerger.h"

#include "catalogue/Jersey.h"
#include "game/EventWords.h"
#include "storage/NameOrder.h"
#include "storage/codepage.h"

#include <algorithm>
#include <set>
#include <tuple>

namespace hooptab {

namespace {

std::string foldedName(const std::string& name) {
  std::string folded = codepage::fromUtf8(name);
  for (char& letter : folded)
    letter = static_cast<char>(codepage::foldCase(static_cast<unsigned char>(letter)));
  return folded;
}

// Numbers and texts joined by a letter that no text of a file holds.
std::string keyOf(SeasonId team, const std::string& text, const std::string& more = {}) {
  return std::to_string(team) + "\n" + text + "\n" + more;
}

} // namespace

CatalogueMerger::CatalogueMerger(const std::vector<const NameTable::Lists*>& readers, std::size_t games) {
  m_content.games.reserve(games);
  for (const NameTable::Lists* names : readers)
    m_readers.push_back({names, std::vector<SeasonId>(names->teams.size(), kNobody),
                         std::vector<SeasonId>(names->players.size(), kNobody),
                         std::vector<SeasonId>(names->lines.size(), kNobody)});
}

void CatalogueMerger::add(ListedGame game, std::size_t reader) {
  Known& known = m_readers[reader];
  for (const Side side : kSides) {
    game.team[side] = team(known, game.team[side]);
    if (game.teamColour[side] != 0)
      m_content.teams[game.team[side]].colour = game.teamColour[side];
  }
  for (GameRow& row : game.players)
    row.id = row.id == kNobody ? kNobody : player(known, row.id);
  for (LineRow& row : game.lines)
    row.id = row.id == kNobody ? kNobody : line(known, row.id);
  m_content.games.push_back(std::move(game));
}

SeasonId CatalogueMerger::team(Known& reader, SeasonId id) {
  SeasonId& known = reader.teams[id];
  if (known == kNobody) {
    const NameTable::Team& team = reader.names->teams[id];
    const std::string key = seasonTeamKey(team.abbreviation, team.category);
    const auto [place, isNew] = m_teamIds.emplace(key, static_cast<SeasonId>(m_content.teams.size()));
    known = place->second;
    if (isNew)
      m_content.teams.push_back({key, team.abbreviation, team.name, 0});
    else if (m_content.teams[known].name.empty())
      m_content.teams[known].name = team.name;
  }
  return known;
}

SeasonId CatalogueMerger::player(Known& reader, SeasonId id) {
  SeasonId& known = reader.players[id];
  if (known == kNobody) {
    const NameTable::Player& player = reader.names->players[id];
    const SeasonId ofTeam = team(reader, player.team);
    const auto [place, isNew] =
        m_playerIds.emplace(keyOf(ofTeam, canonicalJersey(player.jersey), foldedName(player.name)),
                            static_cast<SeasonId>(m_content.players.size()));
    known = place->second;
    if (isNew)
      m_content.players.push_back({ofTeam, player.jersey, player.name});
  }
  return known;
}

SeasonId CatalogueMerger::line(Known& reader, SeasonId id) {
  SeasonId& known = reader.lines[id];
  if (known == kNobody) {
    const NameTable::Line& line = reader.names->lines[id];
    std::vector<std::string> jerseys = line.jerseys;
    std::ranges::sort(jerseys, jerseyBefore);
    const SeasonId ofTeam = team(reader, line.team);
    std::string name = lineName(jerseys);
    const auto [place, isNew] =
        m_lineIds.emplace(keyOf(ofTeam, name), static_cast<SeasonId>(m_content.lines.size()));
    known = place->second;
    if (isNew) {
      m_content.lines.push_back({ofTeam, {}, std::move(name)});
      m_lineJerseys.push_back(std::move(jerseys));
    }
  }
  return known;
}

// Of the files that tell one game the fullest stands for all, the first of equal ones.
void CatalogueMerger::noteCopies() {
  std::vector<ListedGame>& games = m_content.games;
  std::map<std::string, std::vector<std::size_t>> tellings; // by date, teams and how they begin
  for (std::size_t i = 0; i < games.size(); ++i) {
    const ListedGame& game = games[i];
    if (game.beginning != 0) // games without events are alike without being one
      tellings[keyOf(game.team[Side::Visitor], std::to_string(game.team[Side::Home]) + "\n" + game.date,
                     std::to_string(game.beginning))]
          .push_back(i);
  }
  for (const auto& [key, places] : tellings) {
    const std::size_t fullest =
        *std::ranges::max_element(places, {}, [&](std::size_t place) { return games[place].eventCount; });
    for (const std::size_t place : places) {
      if (place != fullest)
        games[place].copyOf = fullest;
    }
  }
}

void CatalogueMerger::orderNames() {
  std::vector<std::pair<std::string, SeasonPlayer*>> players;
  players.reserve(m_content.players.size());
  for (SeasonPlayer& player : m_content.players)
    players.emplace_back(nameOrderKey(player.name), &player);
  std::ranges::sort(players);
  for (std::size_t i = 0; i < players.size(); ++i) {
    const bool isSame = i > 0 && players[i].first == players[i - 1].first;
    players[i].second->nameOrder = isSame ? players[i - 1].second->nameOrder : static_cast<int>(i);
  }
}

// A jersey that several wore over the season names them all: a line is known by its jerseys alone.
void CatalogueMerger::nameLines() {
  std::vector<std::map<std::string, std::string>> names(m_content.teams.size()); // by jersey
  std::set<std::tuple<SeasonId, std::string, std::string>> seen;                 // a name once for a jersey
  for (const SeasonPlayer& player : m_content.players) {
    const std::string jersey = canonicalJersey(player.number);
    const std::string name = familyName(player.name);
    std::string& known = names[player.team][jersey];
    if (seen.emplace(player.team, jersey, name).second)
      known += (known.empty() ? "" : "/") + name;
  }
  for (std::size_t i = 0; i < m_content.lines.size(); ++i) {
    SeasonLine& line = m_content.lines[i];
    for (const std::string& jersey : m_lineJerseys[i]) {
      const auto found = names[line.team].find(jersey);
      line.players += (line.players.empty() ? "" : ", ") + jersey;
      if (found != names[line.team].end() && !found->second.empty())
        line.players += ' ' + found->second;
    }
  }
}

GameCatalogue::Content CatalogueMerger::finish() && {
  for (SeasonTeam& team : m_content.teams) {
    if (team.name.empty())
      team.name = team.key;
  }
  std::vector<bool> hasZero(m_content.teams.size());
  std::vector<bool> hasDoubleZero(m_content.teams.size());
  for (const SeasonPlayer& player : m_content.players) {
    hasZero[player.team] = hasZero[player.team] || player.number == "0";
    hasDoubleZero[player.team] = hasDoubleZero[player.team] || player.number == "00";
  }
  for (std::size_t i = 0; i < m_content.lines.size(); ++i) {
    SeasonLine& line = m_content.lines[i];
    line.list = lineList(m_lineJerseys[i], hasZero[line.team] && hasDoubleZero[line.team]);
  }
  noteCopies();
  orderNames();
  nameLines();
  return std::move(m_content);
}

} // namespace hooptab
