#include "game/Roster.h"

#include <algorithm>

namespace hooptab {

void Roster::add(RosterPlayer player) {
  m_players.push_back(std::move(player));
  const int entry = static_cast<int>(m_players.size());
  const std::string& jersey = m_players.back().jersey;
  if (const int number = jerseyNumber(jersey); number >= 0) {
    NumberEntry& known = m_byNumber[static_cast<std::size_t>(number)];
    if (known.isTaken)
      known.isAmbiguous = true;
    else if (entry <= kLargestEntry)
      known.entry = static_cast<std::int8_t>(entry);
    known.isTaken = true;
  }
  if (entry > kLargestEntry)
    return;
  const auto place = std::ranges::upper_bound(
      m_entriesByNumber, jersey, Module1::jerseyBefore,
      [this](std::int8_t other) -> const std::string& { return this->player(other)->jersey; });
  m_entriesByNumber.insert(place, static_cast<std::int8_t>(entry));
  if (jersey == "0" && m_zeroEntry == 0)
    m_zeroEntry = entry;
  if (jersey == "00" && m_doubleZeroEntry == 0)
    m_doubleZeroEntry = entry;
}

int Roster::entryByText(std::string_view jersey, int number) const {
  const auto same = std::ranges::find(m_players, jersey, &RosterPlayer::jersey);
  if (same == m_players.end())
    return number < 0 ? 0 : m_byNumber[static_cast<std::size_t>(number)].entry;
  const auto entry = static_cast<int>(same - m_players.begin()) + 1;
  return entry <= kLargestEntry ? entry : 0;
}

bool Roster::areOneNumber(std::string_view jersey, std::string_view other) {
  const int number = jerseyNumber(jersey);
  if (jersey == other || number < 0 || number != jerseyNumber(other))
    return false;
  return number != 0 || jersey.size() + other.size() != 3;
}

// Readers find the key of the same text first, so that "5" and "05" stay two players in a list.
bool Roster::isListedAsWritten(std::string_view jersey) const {
  const int number = jerseyNumber(jersey);
  return number > 0 && m_byNumber[static_cast<std::size_t>(number)].isAmbiguous &&
         std::ranges::find(m_players, jersey, &RosterPlayer::jersey) != m_players.end();
}

std::string Roster::listedJersey(std::string_view jersey) const {
  if (hasZeroAndDoubleZero() && jersey == "00")
    return "000";
  if (isListedAsWritten(jersey))
    return std::string(jersey);
  return std::string(jersey.size() < 2 ? 2 - jersey.size() : 0, '0').append(jersey);
}

std::string Roster::listOf(unsigned entries) const {
  std::string list;
  list.reserve(24); // five players of up to three letters
  list = "IN";
  for (const std::int8_t entry : m_entriesByNumber) {
    if ((entries & (1U << entry)) == 0)
      continue;
    list += '-';
    list += listedJersey(player(entry)->jersey);
  }
  return list.size() == 2 ? "IN-" : list;
}

const RosterPlayer* Roster::player(int entry) const {
  return entry >= 1 && entry <= static_cast<int>(m_players.size())
             ? &m_players[static_cast<std::size_t>(entry - 1)]
             : nullptr;
}

} // namespace hooptab
