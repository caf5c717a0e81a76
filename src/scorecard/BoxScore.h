// The rows of the scorecard table: per player or per line of players, and the team's total, computed from a
// game's counters; and its columns, those of the statistics between the few that are texts. Knows not how
// they look.
#pragma once

#include "game/CountedGame.h"
#include "game/Side.h"
#include "game/Statistics.h"
#include "settings/Texts.h"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace hooptab {

// A team's row is one of a league's sheet.
enum class BoxRowKind : std::uint8_t { Player, OtherPlayers, Line, OtherLines, Team, Total };

struct BoxRow {
  BoxRowKind kind = BoxRowKind::Player;
  int entry = 0;        // player or line entry; -1 for team and total
  std::string number;   // jersey; a line's entry number; empty for others and total
  std::string name;     // player's name; a line's jerseys as the roster writes them, "4-5-10-12-15"; text of
                        // others or total
  std::string position; // in the language in use; "na" where there is none
  BoxNumbers numbers;
  int foulsDrawn = 0;    // of players, and their total
  int blocksAgainst = 0; // their shots that were blocked
};

// What a row is known by, beside its kind, when the game is read anew: entries are places, and another line
// may have come before it.
[[nodiscard]] std::string_view boxRowKey(const BoxRow& row);

enum class BoxView : std::uint8_t { Players, Lines };

// Rows in the order of the entries, the team's total last: the sum of every entry, its time the sum of the
// times shown (five times the game's for players). Players of the roster all have a row; "others" and "other
// lines" have one only when they have any count; lines when they played a second or have any count.
[[nodiscard]] std::vector<BoxRow> boxRows(const CountedGame& counted, Side team, BoxView view,
                                          const Texts& texts);

// By creation index, from 1.
struct BoxColumn {
  int index;
  std::string_view header; // short, the same in both languages, where headerText is none
  Text headerText;         // none for most
  int widthTwips;          // 0: hidden
  bool isLeftAligned;
  bool isMadeOrAttempted;     // hidden by "Statistics without Made and Attempt"
  std::string_view name;      // unique, for command line and export: "No", "Name", "FGM", "FGPTS", "rating"
  const Statistic* statistic; // null: a text, or the time by which another column sorts
};
inline constexpr int kTimeSortColumn = 33;
[[nodiscard]] std::span<const BoxColumn> boxColumns();
[[nodiscard]] inline int boxColumnCount() {
  return static_cast<int>(boxColumns().size());
}
[[nodiscard]] const BoxColumn& boxColumn(int index);
[[nodiscard]] const std::vector<int>& boxDisplayOrder(); // creation indexes from left to right

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
