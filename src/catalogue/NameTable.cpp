#include "catalogue/NameTable.h"

#include "catalogue/Jersey.h"
#include "storage/Module1.h"

#include <algorithm>

namespace hooptab {

namespace {

// Codes below are numbers of jerseys themselves.
constexpr NameTable::JerseyCode kFirstOtherCode = 1000;

template <class Ids, class Value>
SeasonId idOf(Ids& ids, std::string_view key, std::vector<Value>& values, auto&& makeValue) {
  const auto found = ids.find(key);
  if (found != ids.end())
    return found->second;
  const auto id = static_cast<SeasonId>(values.size());
  values.push_back(makeValue());
  ids.emplace(std::string(key), id);
  return id;
}

} // namespace

std::size_t NameTable::slotOf(const LineKey& key) const {
  constexpr std::uint64_t kFactor = 0x9E3779B97F4A7C15U;
  std::uint64_t hash = key.team + key.count;
  for (const JerseyCode jersey : key.jerseys)
    hash = (hash ^ jersey) * kFactor;
  const std::size_t mask = m_lineSlots.size() - 1;
  std::size_t slot = static_cast<std::size_t>(hash >> 32U) & mask;
  while (m_lineSlots[slot] != kNobody && m_lineKeys[m_lineSlots[slot]] != key)
    slot = (slot + 1) & mask;
  return slot;
}

void NameTable::growLineSlots() {
  constexpr std::size_t kFirstSize = 1024; // a power of two, as every later size
  m_lineSlots.assign(std::max(kFirstSize, m_lineSlots.size() * 2), kNobody);
  for (std::size_t id = 0; id < m_lineKeys.size(); ++id)
    m_lineSlots[slotOf(m_lineKeys[id])] = static_cast<SeasonId>(id);
}

SeasonId NameTable::team(const GameDetails& details, Side side) {
  const std::string& abbreviation = details.abbreviation[side];
  const std::string& category = details.category[side];
  const std::string& name = details.name[side];
  // No text of a file holds a line break.
  m_key.assign(abbreviation).append("\n").append(category).append("\n").append(name);
  return idOf(m_teamIds, m_key, m_lists.teams, [&] { return Team{abbreviation, category, name}; });
}

SeasonId NameTable::player(SeasonId team, std::string_view jersey, std::string_view name) {
  m_key.assign(reinterpret_cast<const char*>(&team), sizeof team);
  m_key.append(jersey).append("\n").append(name);
  return idOf(m_playerIds, m_key, m_lists.players, [&] {
    return Player{team, std::string(jersey), std::string(name)};
  });
}

NameTable::JerseyCode NameTable::jerseyCode(std::string_view jersey) {
  const int number = Module1::wholeNumber(jersey);
  if (number > 0 ? number < static_cast<int>(kFirstOtherCode) : jersey == "0")
    return static_cast<JerseyCode>(number);
  const std::string canonical = canonicalJersey(jersey);
  return kFirstOtherCode + idOf(m_jerseyCodes, canonical, m_jerseys, [&] { return canonical; });
}

SeasonId NameTable::line(const LineKey& key) {
  if (m_lineKeys.size() * 2 >= m_lineSlots.size())
    growLineSlots();
  SeasonId& id = m_lineSlots[slotOf(key)];
  if (id == kNobody) {
    id = static_cast<SeasonId>(m_lists.lines.size());
    m_lineKeys.push_back(key);
    Line line{key.team, {}};
    for (std::uint32_t i = 0; i < key.count; ++i) {
      const JerseyCode code = key.jerseys[i];
      line.jerseys.push_back(code < kFirstOtherCode ? std::to_string(code)
                                                    : m_jerseys[code - kFirstOtherCode]);
    }
    m_lists.lines.push_back(std::move(line));
  }
  return id;
}

} // namespace hooptab
