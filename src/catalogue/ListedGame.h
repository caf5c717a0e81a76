// What a season keeps of a game: its details, its result, and the counters of each player and line. Events
// are not kept; thousands of games fit in memory so. Plain values, filled by SummaryReader.
#pragma once

#include "checks/Finding.h"
#include "game/GameState.h"
#include "game/Side.h"
#include "insight/GameInsight.h"

#include <array>
#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <vector>

namespace hooptab {

// Place in one of the catalogue's tables: teams, players or lines.
using SeasonId = std::uint32_t;
inline constexpr SeasonId kNobody = std::numeric_limits<SeasonId>::max();

// A player or a line in one game. Players who have no row of their own in a game ("others") are one row with
// the id kNobody, so that the rows of a side add up to the team.
struct GameRow {
  SeasonId id = kNobody;
  std::int32_t seconds = 0; // not below 0
  Counters counters;
  Side side = Side::Visitor;
  std::uint8_t position = 9; // players: index of the position; 10 for one out of range
  PlayerExtras extras;       // of players
  friend bool operator==(const GameRow&, const GameRow&) = default;
};

// A line, and what the other team did while it was on court. With the id kNobody it belongs to no line of the
// season: it has what its players saw of a game in which there were too many lines to tell all of them.
struct LineRow : GameRow {
  Counters opponents;
  PerSide<std::int16_t> possessions = {}; // that began meanwhile
  std::uint32_t members = 0;              // bit n: the row at place n of the game's `players`

  [[nodiscard]] bool has(std::size_t player) const { return (members >> player & 1U) != 0; }
  friend bool operator==(const LineRow&, const LineRow&) = default;
};

// A two- or three-point field goal for the season's shot chart. Places are whole court units, those outside
// the court at its edge.
struct SeasonShot {
  std::uint8_t x = 0, y = 0;
  std::uint8_t player = 0; // place in the game's `players`
  bool isThree : 1 = false;
  bool isMade : 1 = false;
  bool hasPlace : 1 = false;
  friend bool operator==(const SeasonShot&, const SeasonShot&) = default;
};

enum class InputKind : std::uint8_t { Live, LiveWithoutTime, Manual, Other };

struct ListedGame {
  std::string path;
  std::string date;       // as the file has it
  std::optional<int> day; // of a valid date, see calendarDay()
  std::string place;
  int type = 0;            // index of the game type, one that has a name
  bool isPractice = false; // it says so itself: a game without a type is none
  std::string ruleSet;     // the key of one of kRuleSets, else empty
  InputKind input = InputKind::Live;
  PerSide<SeasonId> team = {kNobody, kNobody};
  PerSide<int> teamNumber = {}; // the teams' identifiers in the settings of whoever recorded the game
  PerSide<std::uint32_t> teamColour = {}; // as the game has it: red + 256 * green + 65536 * blue
  PerSide<int> points = {};
  int overtimes = 0; // periods behind those of the rules
  PerSide<TeamRow> teamRows = {};
  PerSide<int> possessions = {}; // that began; none in a game of totals
  // Of each period of the rules that was played; none in a game of totals, nor of its overtimes.
  std::vector<PerSide<std::int16_t>> periodPoints;
  PerSide<PointOrigins> origins = {};           // nothing of a game of totals
  int seconds = 0;                              // with players on court
  std::array<std::int32_t, 3> leadSeconds = {}; // team 0 ahead, team 1 ahead, tied; not below 0
  std::array<std::string, 2> label;             // of the user's own statistics; empty for none
  std::uint64_t fingerprint = 0;                // of its events; 0 without any
  std::uint64_t beginning = 0;                  // of its first events; 0 where there are few
  std::size_t eventCount = 0;
  // The listed game of the same date, teams and events, if not this: the first of equal ones; of files that
  // begin alike and then differ, the one with the most events.
  std::optional<std::size_t> copyOf;
  std::string outOfRange; // "PAN 12 PF": the count that stays at its limit; usually empty
  // What cannot be so, the first few, and how much there is of it. A game with any counts like the
  // others, once the user has been told.
  std::vector<Finding> wrong;
  std::size_t wrongCount = 0;
  std::vector<GameRow> players; // those who were on court or have any count
  std::uint32_t starters = 0;   // bit n: the row at place n of them was on court when the clock ran first
  std::vector<LineRow> lines;   // those that played a second or have any count
  std::vector<SeasonShot> shots;

  [[nodiscard]] bool isStarter(std::size_t player) const { return (starters >> player & 1U) != 0; }
  // Entered as totals it has no lines.
  [[nodiscard]] bool isFromEvents() const {
    return input == InputKind::Live || input == InputKind::LiveWithoutTime;
  }
  // The side that won, nothing for a tie.
  [[nodiscard]] std::optional<Side> winner() const {
    if (points[Side::Visitor] == points[Side::Home])
      return std::nullopt;
    return points[Side::Visitor] > points[Side::Home] ? Side::Visitor : Side::Home;
  }
  friend bool operator==(const ListedGame&, const ListedGame&) = default;
};

} // namespace hooptab
