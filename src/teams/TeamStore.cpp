#include "teams/TeamStore.h"

#include "storage/Module1.h"
#include "storage/cinifile.h"
#include "storage/codepage.h"

#include <algorithm>
#include <set>

namespace hooptab {

namespace {

constexpr std::string_view kTeams = "TEAM";
constexpr std::size_t kLongestAbsent = 3; // a value no longer than this is no team
constexpr int kLargestId = 999'999'999;

// The id that a key stands for; 0 for one that is no positive whole number as ids are written.
int idOf(std::string_view key) {
  return key.starts_with('0') ? 0 : std::max(Module1::wholeNumber(key), 0);
}

std::string readable(std::string_view value) {
  return codepage::toUtf8(value.substr(0, cinifile::kLongestValue));
}

PlayerRecord recordOf(const std::string& stored) {
  return parsePlayer(readable(codepage::fromUtf8(stored)));
}

// A player who was not edited is written as he stood in the file, were it longer than what was read of it.
std::string valueOf(const TeamPlayer& player) {
  const bool isUnchanged = !player.stored.empty() && recordOf(player.stored) == player.record;
  return isUnchanged ? player.stored : playerValue(player.record);
}

void writePlayers(ProfileBatch& batch, int id, const std::vector<TeamPlayer>& players) {
  const std::string section = std::to_string(id);
  batch.deleteSection(section);
  for (const TeamPlayer& player : players)
    batch.set(section, player.number, valueOf(player));
}

// The lines of section TEAM that a reader finds by their key: of several equal keys the first.
std::vector<ProfileText::Line> teamLines(const ProfileText& file) {
  std::vector<ProfileText::Line> lines;
  for (const ProfileText::Line& line : file.section(kTeams)) {
    const auto found = file.value(kTeams, line.name);
    if (line.kind == ProfileText::Line::Kind::KeyValue && found && found->data() == line.value.data())
      lines.push_back(line);
  }
  return lines;
}

// Of a team's section. A damaged key of a team may name a section that holds no players.
std::vector<ProfileText::Line> playerLines(const ProfileText& file, std::string_view section) {
  std::vector<ProfileText::Line> lines;
  if (codepage::equalNames(section, kTeams) || codepage::equalNames(section, "CONFIGURATION"))
    return lines;
  for (const ProfileText::Line& line : file.section(section)) {
    if (line.kind == ProfileText::Line::Kind::KeyValue)
      lines.push_back(line);
  }
  return lines;
}

} // namespace

TeamStore::TeamStore(ProfileStore& store, Settings& settings) : m_store(store), m_settings(settings) {}

ProfileText TeamStore::file() {
  return m_settings.content();
}

std::vector<TeamEntry> TeamStore::list() {
  std::vector<TeamEntry> teams;
  const ProfileText text = file();
  for (const ProfileText::Line& line : teamLines(text)) {
    if (line.value.size() <= kLongestAbsent)
      continue;
    const TeamRecord team = parseTeam(readable(line.value));
    teams.push_back({codepage::toUtf8(line.name), idOf(line.name), team.abbreviation, team.category,
                     team.name, team.colour(), playerLines(text, line.name).size()});
  }
  return teams;
}

TeamRecord TeamStore::read(std::string_view key) {
  const ProfileText text = file();
  const auto value = text.value(kTeams, codepage::fromUtf8(key));
  return parseTeam(value ? readable(*value) : std::string());
}

std::vector<TeamPlayer> TeamStore::players(std::string_view key) {
  std::vector<TeamPlayer> players;
  const ProfileText text = file();
  for (const ProfileText::Line& line : playerLines(text, codepage::fromUtf8(key))) {
    std::string stored = codepage::toUtf8(line.value);
    PlayerRecord record = recordOf(stored);
    players.push_back({codepage::toUtf8(line.name), std::move(record), std::move(stored)});
  }
  return players;
}

int TeamStore::freeId() {
  std::set<int> taken;
  const ProfileText text = file();
  for (const ProfileText::Line& line : teamLines(text)) {
    const int id = idOf(line.name);
    if (id > 0 && Module1::trimmed(line.value) == "0")
      return id;
    if (id > 0)
      taken.insert(id);
  }
  const int highest = taken.empty() ? 0 : *taken.rbegin();
  if (highest < kLargestId)
    return highest + 1;
  int id = 1; // nothing higher can be written: the first gap
  while (taken.contains(id))
    ++id;
  return id;
}

std::optional<int> TeamStore::create(const Texts& texts) {
  const int id = freeId();
  ProfileBatch batch;
  batch.set(std::string(kTeams), std::to_string(id),
            std::string(texts.text(Text::NewTeamText)) + ", , ," +
                withoutCommas(m_settings.statisticLabel[0]) + ',' +
                withoutCommas(m_settings.statisticLabel[1]) + ",8,4,5,5,2");
  return m_settings.saveOfOthers(batch) ? std::optional(id) : std::nullopt;
}

bool TeamStore::save(int id, const TeamRecord& team, const std::vector<TeamPlayer>& players) {
  ProfileBatch batch;
  batch.set(std::string(kTeams), std::to_string(id), teamValue(team, m_settings.statisticLabel));
  writePlayers(batch, id, players);
  return m_settings.saveOfOthers(batch);
}

bool TeamStore::savePlayers(int id, const std::vector<TeamPlayer>& players) {
  ProfileBatch batch;
  writePlayers(batch, id, players);
  return m_settings.saveOfOthers(batch);
}

bool TeamStore::remove(int id) {
  ProfileBatch batch;
  batch.deleteValue(std::string(kTeams), std::to_string(id));
  batch.deleteSection(std::to_string(id));
  return m_settings.saveOfOthers(batch);
}

int newestTeam(const std::vector<TeamEntry>& teams, const Texts& texts) {
  constexpr std::size_t kCompared = 7;
  int newest = -1;
  for (std::size_t position = 0; position < teams.size(); ++position) {
    const TeamEntry& team = teams[position];
    const std::string entry = (team.abbreviation + " - " + team.category).substr(0, kCompared);
    const auto isNewTeam = [&](const LanguageFacts& facts) {
      return entry == texts.text(Text::NewTeamText, facts.language);
    };
    if (std::ranges::any_of(kLanguages, isNewTeam))
      newest = static_cast<int>(position);
  }
  return newest;
}

} // namespace hooptab
