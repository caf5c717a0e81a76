// Teams and players as the settings file keeps them: records of comma fields, described in
// docs/formats/config.md. Knows no file.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace hooptab {

inline constexpr std::uint32_t kDefaultTeamColour = 8438015; // red + 256 * green + 65536 * blue
inline constexpr std::size_t kLongestAbbreviation = 7;       // bytes of the code page

// Numbers of the rules are texts here: what a user types is kept as it is, and read leniently.
struct TeamRecord {
  std::string abbreviation;
  std::string category;
  std::string name;
  std::string minutesPerPeriod;
  std::string periods;
  std::string bonus;
  std::string personalFoulLimit;
  std::string technicalFoulLimit;
  std::uint32_t storedColour = 0; // the number as it is in the record; 0 when missing or negative
  bool isMain = false;            // the main team on the external keypad

  // The colour to show: the default where none is stored.
  [[nodiscard]] std::uint32_t colour() const { return storedColour == 0 ? kDefaultTeamColour : storedColour; }
  friend bool operator==(const TeamRecord&, const TeamRecord&) = default;
};

struct PlayerRecord {
  int position = 9; // 0 Center, 1 Forward, 2 Guard, 9 N/A
  std::string name;
  std::string height; // free texts
  std::string weight;
  std::string age;
  std::string grade;
  friend bool operator==(const PlayerRecord&, const PlayerRecord&) = default;
};

// A missing field reads as empty. The labels of the statistics (fields 4 and 5) are not read.
[[nodiscard]] TeamRecord parseTeam(std::string_view value);
[[nodiscard]] PlayerRecord parsePlayer(std::string_view value);
// Commas in the free texts become blanks. `labels` are the two of the program, with their prefix.
[[nodiscard]] std::string teamValue(const TeamRecord& team, const std::string (&labels)[2]);
[[nodiscard]] std::string playerValue(const PlayerRecord& player);
// Each "," becomes " ".
[[nodiscard]] std::string withoutCommas(std::string text);

// Whether a jersey is 1 to 3 digits, as it must be to take part in a game.
[[nodiscard]] bool isJersey(std::string_view number);
// Whether a value will be read back whole: 254 bytes of the code page at most.
[[nodiscard]] bool fitsInValue(std::string_view value);

} // namespace hooptab
