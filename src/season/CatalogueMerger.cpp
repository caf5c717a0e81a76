#include "season/CatalogueMerger.h"

#include "season/Jersey.h"
#include "storage/codepage.h"

#include <algorithm>

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

CatalogueMerger::CatalogueMerger(const std::vector<const NameTable*>& readers) {
  for (const NameTable* names : readers)
    m_readers.push_back({names, std::vector<SeasonId>(names->teams().size(), kNobody),
                         std::vector<SeasonId>(names->players().size(), kNobody),
                         std::vector<SeasonId>(names->lines().size(), kNobody)});
}

void CatalogueMerger::add(ListedGame game, std::size_t reader) {
  Known& known = m_readers[reader];
  for (SeasonId& id : game.team)
    id = team(known, id);
  for (GameRow& row : game.players)
    row.id = row.id == kNobody ? kNobody : player(known, row.id);
  for (GameRow& row : game.lines)
    row.id = line(known, row.id);
  noteCopy(game);
  m_content.games.push_back(std::move(game));
}

SeasonId CatalogueMerger::team(Known& reader, SeasonId id) {
  SeasonId& known = reader.teams[id];
  if (known == kNobody) {
    const NameTable::Team& team = reader.names->teams()[id];
    const std::string key = team.abbreviation + "-" + team.category;
    const auto [place, isNew] = m_teamIds.emplace(key, static_cast<SeasonId>(m_content.teams.size()));
    known = place->second;
    if (isNew)
      m_content.teams.push_back({key, team.abbreviation, team.name});
    else if (m_content.teams[known].name.empty())
      m_content.teams[known].name = team.name;
  }
  return known;
}

SeasonId CatalogueMerger::player(Known& reader, SeasonId id) {
  SeasonId& known = reader.players[id];
  if (known == kNobody) {
    const NameTable::Player& player = reader.names->players()[id];
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
    const NameTable::Line& line = reader.names->lines()[id];
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

void CatalogueMerger::noteCopy(ListedGame& game) {
  if (game.fingerprint == 0)
    return; // games without events are alike without being one
  const std::string key =
      keyOf(game.team[0], std::to_string(game.team[1]) + "\n" + game.date, std::to_string(game.fingerprint));
  const auto [place, isFirst] = m_firstCopies.emplace(key, m_content.games.size());
  if (!isFirst)
    game.copyOf = place->second;
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
  return std::move(m_content);
}

} // namespace hooptab
