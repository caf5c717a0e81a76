// The players of one side of one game, and the rule by which a jersey named in an event or an on-court list
// finds its player.
#pragma once

#include "storage/Module1.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace hooptab {

struct RosterPlayer {
  std::string jersey; // the key of the roster section, as written
  int position = 9;   // 0 Center, 1 Forward, 2 Guard, 9 N/A
  std::string name;
};

class Roster {
 public:
  static constexpr int kLargestEntry = 15;

  void add(RosterPlayer player);
  const std::vector<RosterPlayer>& players() const {
    return m_players;
  } // all of the section, more than fifteen included

  // The number that a jersey is, 0 to 999, with any zeros in front; -1 for any other text.
  [[nodiscard]] static int jerseyNumber(std::string_view jersey) {
    constexpr std::size_t kMostDigits = 3;
    while (jersey.size() > kMostDigits && jersey.front() == '0')
      jersey.remove_prefix(1);
    return jersey.size() > kMostDigits ? -1 : Module1::wholeNumber(jersey);
  }

  // 1..15 in the order of the section's keys; 0 for everybody else ("others").
  // As events write it: same text first, else equal number. Inline: it is asked for every event and for every
  // player of every list of a season.
  [[nodiscard]] int entryOf(std::string_view jersey) const {
    const int number = jerseyNumber(jersey);
    // A number that one player alone wears is his, however it is written.
    if (number >= 0 && !m_byNumber[static_cast<std::size_t>(number)].isAmbiguous)
      return m_byNumber[static_cast<std::size_t>(number)].entry;
    return entryByText(jersey, number);
  }
  // As on-court lists write it.
  [[nodiscard]] int entryOfListed(std::string_view jersey) const {
    if (hasZeroAndDoubleZero() && jersey == "00")
      return m_zeroEntry;
    if (hasZeroAndDoubleZero() && jersey == "000")
      return m_doubleZeroEntry;
    return entryOf(jersey);
  }
  // Whether two jerseys are one number written in two ways: "5" and "05". 0 and 00 are two numbers.
  [[nodiscard]] static bool areOneNumber(std::string_view jersey, std::string_view other);
  // How an on-court list writes the player: two digits at least; with both 0 and 00 in the roster, 00 and
  // 000; in a roster that holds one number in two ways, as the roster does.
  [[nodiscard]] std::string listedJersey(std::string_view jersey) const;
  // The on-court list of the players whose entries are set as bits (bit n for entry n), in its order of
  // numbers.
  [[nodiscard]] std::string listOf(unsigned entries) const;
  // The player of an entry, or null (entry 0, or past the end).
  [[nodiscard]] const RosterPlayer* player(int entry) const;
  [[nodiscard]] bool hasZeroAndDoubleZero() const { return m_zeroEntry > 0 && m_doubleZeroEntry > 0; }

 private:
  [[nodiscard]] int entryByText(std::string_view jersey, int number) const;
  [[nodiscard]] bool isListedAsWritten(std::string_view jersey) const;

  struct NumberEntry {
    std::int8_t entry = 0; // the first of that number
    bool isTaken = false;
    bool isAmbiguous = false; // several players wear it ("5" and "05"), so the text decides
  };
  std::vector<RosterPlayer> m_players;
  std::array<NumberEntry, 1000> m_byNumber = {};
  std::vector<std::int8_t> m_entriesByNumber; // entries 1..15 in the order in which lists name them
  int m_zeroEntry = 0;
  int m_doubleZeroEntry = 0;
};

} // namespace hooptab
