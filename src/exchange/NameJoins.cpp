#include "exchange/NameJoins.h"

#include "storage/Module1.h"
#include "storage/codepage.h"

#include <filesystem>
#include <utility>

namespace hooptab {

namespace {

std::string pathIn(const std::string& folder) {
  return (std::filesystem::path(folder) / NameJoins::kFileName).string();
}

// Whether a line of the file that begins with it is read as that key.
bool canBeKey(std::string_view name) {
  return !name.empty() && name.front() != ';' && name.front() != '[' &&
         name.find('=') == std::string_view::npos;
}

bool canBeSection(std::string_view team) {
  return !team.empty() && team.find(']') == std::string_view::npos;
}

} // namespace

const std::string& shortNameOf(const ForeignTeam& team) {
  return team.abbreviation.empty() ? team.name : team.abbreviation;
}

std::string foldedName(std::string_view name) {
  std::string folded = codepage::fromUtf8(Module1::trimmed(name));
  for (char& letter : folded)
    letter = static_cast<char>(codepage::foldCase(static_cast<unsigned char>(letter)));
  return folded;
}

NameJoins NameJoins::of(ProfileStore& store, const std::string& folder) {
  NameJoins joins;
  const ProfileReading file = store.read(pathIn(folder));
  for (const ProfileText::NamedSection& section : file.text.sections()) {
    for (const ProfileText::Line& line : section.lines) {
      if (line.kind == ProfileText::Line::Kind::KeyValue && line.value != "0") // 0: deleted
        joins.join(codepage::toUtf8(section.name), codepage::toUtf8(line.name), codepage::toUtf8(line.value));
    }
  }
  return joins;
}

WriteResult NameJoins::save(ProfileStore& store, const std::string& folder) const {
  const NameJoins before = of(store, folder);
  ProfileBatch batch;
  for (const auto& [key, team] : before.m_teams) {
    if (!m_teams.contains(key))
      batch.setSectionLines(team.name, {});
  }
  for (const auto& [key, team] : m_teams) {
    const auto old = before.m_teams.find(key);
    if (old != before.m_teams.end() && old->second == team)
      continue;
    std::vector<std::pair<std::string, std::string>> lines;
    for (const auto& [folded, name] : team.names)
      lines.emplace_back(name.name, name.written);
    batch.setSectionLines(team.name, std::move(lines));
  }
  return batch.isEmpty() ? WriteResult() : store.write(pathIn(folder), batch);
}

void NameJoins::join(std::string_view team, std::string_view name, std::string_view written) {
  name = Module1::trimmed(name);
  written = Module1::trimmed(written);
  team = Module1::trimmed(team);
  if (!canBeKey(name) || !canBeSection(team))
    return;
  const std::string key = foldedName(team);
  if (written.empty() || written == name) {
    const auto found = m_teams.find(key);
    if (found == m_teams.end())
      return;
    found->second.names.erase(foldedName(name));
    if (found->second.names.empty())
      m_teams.erase(found);
    return;
  }
  Team& known = m_teams.try_emplace(key, Team{std::string(team)}).first->second;
  known.names.insert_or_assign(foldedName(name), Name{std::string(name), std::string(written)});
}

std::string NameJoins::written(std::string_view team, std::string_view name) const {
  if (const auto known = m_teams.find(foldedName(team)); known != m_teams.end()) {
    if (const auto found = known->second.names.find(foldedName(name)); found != known->second.names.end())
      return found->second.written;
  }
  return std::string(name);
}

void NameJoins::applyTo(ForeignGame& game) const {
  for (ForeignTeam& team : game.teams) {
    for (ForeignPlayer& player : team.players)
      player.name = written(shortNameOf(team), player.name);
  }
}

} // namespace hooptab
