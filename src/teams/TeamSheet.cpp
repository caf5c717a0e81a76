#include "teams/TeamSheet.h"

#include "game/Roster.h"
#include "settings/ChoiceTexts.h"
#include "storage/Module1.h"
#include "storage/Placeholders.h"
#include "storage/codepage.h"

#include <algorithm>
#include <array>
#include <utility>

namespace hooptab {

namespace {

// What a field becomes in the file.
std::string stored(const std::string& text) {
  return std::string(Module1::trimmed(codepage::storedForm(withoutCommas(text))));
}

PlayerRecord recordOf(const PlayerFields& fields) {
  return {fields.position.value_or(kNoPosition),
          stored(fields.name),
          stored(fields.height),
          stored(fields.weight),
          stored(fields.age),
          stored(fields.grade)};
}

std::string_view trimmed(const std::string& text) {
  return Module1::trimmed(text);
}

std::string inWords(const Texts& texts, Text which, std::string_view x, std::string_view y,
                    std::string_view z = {}) {
  return withPlaceholders(texts.text(which), x, y, z);
}

} // namespace

void TeamSheet::load(std::vector<TeamPlayer> players) {
  m_players = players;
  m_written = std::move(players);
}

bool TeamSheet::isChanged() const {
  return !std::ranges::is_permutation(m_players, m_written);
}

// The first row of that number and name; an empty one fits every row.
int TeamSheet::rowOf(const std::string& number, const std::string& name) const {
  const auto found = std::ranges::find_if(m_players, [&](const TeamPlayer& player) {
    return (number.empty() || player.number == number) &&
           (name.empty() || trimmed(player.record.name) == name);
  });
  return found == m_players.end() ? -1 : static_cast<int>(found - m_players.begin());
}

TeamSheet::Target TeamSheet::target(const PlayerFields& fields) const {
  const std::string number = stored(fields.number);
  const std::string name = stored(fields.name);
  const int both = number.empty() || name.empty() ? -1 : rowOf(number, name);
  if (both >= 0)
    return {Effect::Changes, both};
  const int byNumber = number.empty() ? -1 : rowOf(number, {});
  const int byName = name.empty() ? -1 : rowOf({}, name);
  if (byNumber >= 0 && byName >= 0)
    return {Effect::Conflicts, byNumber, byName};
  if (byNumber >= 0)
    return {Effect::Renames, byNumber};
  for (std::size_t row = 0; row < m_players.size(); ++row) {
    if (static_cast<int>(row) != byName && Roster::areOneNumber(m_players[row].number, number))
      return {Effect::WritesOtherwise, static_cast<int>(row)};
  }
  if (byName >= 0)
    return {Effect::Renumbers, byName};
  return {};
}

std::string TeamSheet::announcement(const PlayerFields& fields, const Texts& texts) const {
  const std::string number = stored(fields.number);
  const std::string name = stored(fields.name);
  if (number.empty() || name.empty())
    return {};
  const Target target = this->target(fields);
  const auto player = [this](int row) -> const TeamPlayer& {
    return m_players[static_cast<std::size_t>(row)];
  };
  switch (target.effect) {
  case Effect::Adds: return inWords(texts, Text::AddsPlayer, number, name);
  case Effect::Changes: return inWords(texts, Text::ChangesPlayer, number, name);
  case Effect::Renumbers:
    return inWords(texts, Text::RenumbersPlayer, name, player(target.row).number, number);
  case Effect::Renames:
    return inWords(texts, Text::RenamesPlayer, number, player(target.row).record.name, name);
  case Effect::Conflicts:
    return inWords(texts, Text::NumberAndNameConflict, number, player(target.row).record.name,
                   player(target.otherRow).number + ' ' + name);
  case Effect::WritesOtherwise:
    return inWords(texts, Text::WritesOtherwise, number, player(target.row).number,
                   player(target.row).record.name);
  }
  return {};
}

TeamSheet::Problem TeamSheet::problem(const PlayerFields& fields) {
  if (!isJersey(trimmed(fields.number)))
    return Problem::NoJersey;
  if (!fields.position)
    return Problem::NoPosition;
  if (stored(fields.name).empty())
    return Problem::NoName;
  return fits(fields) ? Problem::None : Problem::TooLong;
}

bool TeamSheet::fits(const PlayerFields& fields) {
  return fitsInValue(playerValue(recordOf(fields)));
}

int TeamSheet::put(const PlayerFields& fields) {
  const Target target = this->target(fields);
  if (isRefused(target.effect))
    return -1;
  if (target.effect == Effect::Adds)
    m_players.emplace_back();
  const std::size_t row =
      target.effect == Effect::Adds ? m_players.size() - 1 : static_cast<std::size_t>(target.row);
  m_players[row].number = stored(fields.number);
  m_players[row].record = recordOf(fields);
  return static_cast<int>(row);
}

bool TeamSheet::remove(const std::string& number) {
  const int row = rowOf(std::string(trimmed(number)), {});
  if (trimmed(number).empty() || row < 0)
    return false;
  m_players.erase(m_players.begin() + row);
  return true;
}

void TeamSheet::sort(PlayerColumn column, const Texts& texts, const IsBefore& isBefore) {
  std::vector<std::pair<std::string, TeamPlayer>> rows;
  for (std::size_t row = 0; row < m_players.size(); ++row)
    rows.emplace_back(text(static_cast<int>(row), column, texts), m_players[row]);
  std::ranges::stable_sort(
      rows, [&](const auto& left, const auto& right) { return isBefore(left.first, right.first); });
  for (std::size_t row = 0; row < rows.size(); ++row)
    m_players[row] = std::move(rows[row].second);
}

PlayerFields fieldsOf(const TeamPlayer& player) {
  const PlayerRecord& record = player.record;
  return {player.number, record.position, record.name, record.height,
          record.weight, record.age,      record.grade};
}

std::string TeamSheet::text(int row, PlayerColumn column, const Texts& texts) const {
  const auto& [number, record, fromFile] = m_players[static_cast<std::size_t>(row)];
  switch (column) {
  case PlayerColumn::Number: return number;
  case PlayerColumn::Name: return record.name;
  case PlayerColumn::Position: return positionText(record.position, texts);
  case PlayerColumn::PositionIndex: return std::to_string(record.position);
  case PlayerColumn::Height: return record.height;
  case PlayerColumn::Weight: return record.weight;
  case PlayerColumn::Age: return record.age;
  case PlayerColumn::Grade: return record.grade;
  }
  return {};
}

std::string TeamSheet::repeatedNumber() const {
  for (std::size_t row = 0; row < m_players.size(); ++row) {
    for (std::size_t before = 0; before < row; ++before) {
      if (codepage::equalNames(codepage::fromUtf8(m_players[before].number),
                               codepage::fromUtf8(m_players[row].number)))
        return m_players[row].number;
    }
  }
  return {};
}

} // namespace hooptab
