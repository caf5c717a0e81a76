// The columns of the season tables and the text of their cells, in totals and in averages: those of the
// statistics between names, games, rank and positions. The one place where averages are computed.
#pragma once

#include "season/SeasonStatistics.h"
#include "settings/Texts.h"

#include <cstdint>
#include <iterator>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace hooptab {

// The instances of each table, by their index.
enum class SeasonView : std::uint8_t { Totals, PerGame, PerMinute, PerForty };
inline constexpr SeasonView kSeasonViews[] = {SeasonView::Totals, SeasonView::PerGame, SeasonView::PerMinute,
                                              SeasonView::PerForty};
inline constexpr std::size_t kSeasonViewCount = std::size(kSeasonViews);
// The same in every language, for files: "total", "perGame", "perMinute", "per40".
[[nodiscard]] std::string_view seasonViewName(SeasonView view);

// By creation index, from 1.
struct SeasonColumn {
  int index;
  std::string_view header; // short, the same in both languages, where headerText is none
  Text headerText;
  int widthTwips; // of the players' table; 0: hidden
  bool isLeftAligned;
  std::string_view name;      // unique, for command line and export: "No", "TGM", "F2PTS", "rating"
  const Statistic* statistic; // null: a text, the games played or the rank
};
inline constexpr int kNumberColumn = 1;
inline constexpr int kNameColumn = 2;
inline constexpr int kTimeColumn = 3;
inline constexpr int kGamesColumn = 4;
[[nodiscard]] std::span<const SeasonColumn> seasonColumns();
enum class SeasonTable : std::uint8_t { Players, Lines };
// The columns of a table, in their order: lines have no positions.
[[nodiscard]] const std::vector<int>& columnsOfTable(SeasonTable table);
// What was counted, in its order: the columns of statistics but the time.
[[nodiscard]] const std::vector<int>& countColumns();
// Header and width differ between the two tables in the first two columns.
[[nodiscard]] std::string seasonHeader(int column, SeasonTable table, const Texts& texts);
[[nodiscard]] int seasonWidthTwips(int column, SeasonTable table);
[[nodiscard]] const SeasonColumn& seasonColumn(int index);
[[nodiscard]] const SeasonColumn& seasonColumn(std::string_view name); // a name of the table

// What a cell of a statistic, or of the games, holds: seconds for the time.
[[nodiscard]] StatisticValue seasonValue(const SeasonRow& row, int column, SeasonView view);

[[nodiscard]] int seasonDecimals(SeasonView view); // of a count in that view
// Points ahead while on court; nothing where no game tells who was, or where there is nothing to divide by.
[[nodiscard]] std::optional<double> seasonPlusMinus(const SeasonRow& row, SeasonView view);
[[nodiscard]] std::string seasonPlusMinusText(const SeasonRow& row, SeasonView view); // "+6.2"; "–"

[[nodiscard]] std::string seasonCell(const SeasonRow& row, int column, SeasonView view, const Texts& texts);
// The number by which a column sorts; columns of texts sort by their text.
[[nodiscard]] double seasonSortValue(const SeasonRow& row, int column, SeasonView view);
[[nodiscard]] bool seasonColumnIsText(int column);

} // namespace hooptab
