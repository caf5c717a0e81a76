// The columns of the list of games and of the results by game, and the text of their cells.
#pragma once

#include "catalogue/GameCatalogue.h"
#include "game/Side.h"
#include "season/SeasonColumns.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace hooptab {

// The list of games, by creation index 1..17.
struct GameColumn {
  int index;
  std::string_view header; // where headerText is none
  Text headerText;
  int widthTwips; // 0: hidden
  bool isLeftAligned;
  std::string_view name; // unique, the same in both languages, for files
};
inline constexpr int kGameColumnCount = 17;
[[nodiscard]] std::span<const GameColumn, kGameColumnCount> gameColumns();

// `chosenTeam`: the team whose results are shown; without one, the winner, named as in his column.
[[nodiscard]] std::string gameCell(const GameCatalogue& catalogue, const ListedGame& game, int column,
                                   std::optional<SeasonId> chosenTeam, const Texts& texts);
// The number by which a column sorts: valid dates by day, the others behind; points and hidden times as
// numbers. Columns of text sort by their text.
[[nodiscard]] double gameSortValue(const ListedGame& game, int column);
[[nodiscard]] bool gameColumnIsText(int column);

// "W 87-80": win, loss or tie of a side, its own points first.
[[nodiscard]] std::string resultText(const ListedGame& game, Side side, const Texts& texts);

// The results by game of a player or line: date, where, result, opponent, then all statistics. By index
// from 1.
inline constexpr int kResultOpponentColumn = 4;
[[nodiscard]] inline int resultColumnCount() {
  return kResultOpponentColumn + static_cast<int>(statistics().size());
}
// The game as a row of the season tables, without names: what fills the columns they share.
[[nodiscard]] SeasonRow rowOfResult(const GameResult& result);
[[nodiscard]] SeasonRow sumOfResults(std::span<const GameResult> results); // several games
// The season column of a result column; 0 for the first four.
[[nodiscard]] int seasonColumnOfResult(int column);
[[nodiscard]] std::string resultHeader(int column, const Texts& texts);
[[nodiscard]] std::string resultCell(const GameCatalogue& catalogue, const GameResult& result, int column,
                                     const Texts& texts);
// Beyond the first four columns: the number by which the column sorts; the date's for the first.
[[nodiscard]] double resultSortValue(const GameCatalogue& catalogue, const GameResult& result, int column);

} // namespace hooptab
