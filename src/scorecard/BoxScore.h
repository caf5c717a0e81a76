// The rows of the scorecard table: per player or per line of players, and the team's total, computed from a
// game's counters. Derived numbers (points, percentages, rating) stand here and nowhere else. Knows the
// columns, not how they look.
#pragma once

#include "game/GameFile.h"
#include "game/GameState.h"
#include "settings/Texts.h"

#include <array>
#include <cstdint>
#include <initializer_list>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace hooptab {

// The counts of a row, wide enough for the sum of a whole team's 16-bit counts.
struct BoxCounters {
  std::array<std::int32_t, kCounterCount> counts = {};

  std::int32_t operator[](Counter counter) const { return counts[static_cast<std::size_t>(counter)]; }
  BoxCounters& operator+=(const Counters& added);
  friend bool operator==(const BoxCounters&, const BoxCounters&) = default;
};

// Some of the shot kinds, as bits: bit n for the kind at place n of the table of kinds.
using ShotKinds = unsigned;
[[nodiscard]] constexpr ShotKinds shotKinds(std::initializer_list<EventCode> codes) {
  ShotKinds kinds = 0;
  for (std::size_t i = 0; i < kEventKinds.size(); ++i) {
    for (const EventCode code : codes)
      kinds |= kEventKinds[i].isShot && kEventKinds[i].code == code ? 1U << i : 0U;
  }
  return kinds;
}
inline constexpr ShotKinds kAllShotKinds =
    shotKinds({EventCode::GFG, EventCode::GF3, EventCode::GFT, EventCode::GLG, EventCode::GLD, EventCode::GPB,
               EventCode::GDK});

// Numbers of a row, whatever it stands for.
struct BoxNumbers {
  BoxCounters counters;
  std::int32_t seconds = 0; // not below 0

  [[nodiscard]] int made(ShotKinds kinds = kAllShotKinds) const;
  [[nodiscard]] int attempted(ShotKinds kinds = kAllShotKinds) const;
  [[nodiscard]] int points(ShotKinds kinds = kAllShotKinds) const;
  [[nodiscard]] int rebounds() const; // OR + DR
  [[nodiscard]] int rating() const;   // PTS + OR + DR + Ast + ST + BS - ((A - M) + TO)
};

enum class BoxRowKind : std::uint8_t { Player, OtherPlayers, Line, OtherLines, Total };

struct BoxRow {
  BoxRowKind kind = BoxRowKind::Player;
  int entry = 0;        // player or line entry; -1 for the total
  std::string number;   // jersey; a line's entry number; empty for others and total
  std::string name;     // player's name; a line's jerseys as the roster writes them, "4-5-10-12-15"; text of
                        // others or total
  std::string position; // in the language in use; "na" where there is none
  BoxNumbers numbers;
};

// What a row is known by, beside its kind, when the game is read anew: entries are places, and another line
// may have come before it.
[[nodiscard]] std::string_view boxRowKey(const BoxRow& row);

enum class BoxView : std::uint8_t { Players, Lines };

// Rows in the order of the entries, the team's total last: the sum of every entry, its time the sum of the
// times shown (five times the game's for players). Players of the roster all have a row; "others" and "other
// lines" have one only when they have any count; lines when they played a second or have any count.
[[nodiscard]] std::vector<BoxRow> boxRows(const Game& game, const GameState& state, int team, BoxView view,
                                          const Texts& texts);

// The 48 columns, by creation index 1..48.
struct BoxColumn {
  int index;               // 1..48
  std::string_view header; // short, the same in both languages, where headerText is none
  Text headerText;         // none for most
  int widthTwips;          // 0: hidden
  bool isLeftAligned;
  bool isMadeOrAttempted; // hidden by "Statistics without Made and Attempt"
  std::string_view name;  // unique, for command line and export: "No", "Name", "FGM", "FGPTS", "rating"
};
inline constexpr int kBoxColumnCount = 48;
inline constexpr int kTimeSortColumn = 33;
[[nodiscard]] std::span<const BoxColumn, kBoxColumnCount> boxColumns();
[[nodiscard]] const std::array<int, kBoxColumnCount>&
boxDisplayOrder(); // creation indexes from left to right

// The text of a cell, and the number by which its column sorts (text columns sort by their text). A
// percentage sorts by its exact ratio, without attempts below 0%; jerseys by number, "0" before "00", those
// that are no numbers behind.
[[nodiscard]] std::string boxCell(const BoxRow& row, int column);
[[nodiscard]] double boxSortValue(const BoxRow& row, int column);
[[nodiscard]] bool boxColumnIsText(int column);

// Jerseys by number, "0" before "00"; behind them those that are no numbers, by their letters; last, rows
// without any.
[[nodiscard]] double jerseySortValue(std::string_view jersey);

} // namespace hooptab
