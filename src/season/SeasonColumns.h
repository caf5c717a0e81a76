// The columns of the season tables and the text of their cells, in totals and in averages. The tables of
// players have all 55, those of lines the first 53. The one place where averages are computed.
#pragma once

#include "season/SeasonStatistics.h"
#include "settings/Texts.h"

#include <cstdint>
#include <iterator>
#include <span>
#include <string>
#include <string_view>

namespace hooptab {

// The instances of each table, by their index.
enum class SeasonView : std::uint8_t { Totals, PerGame, PerMinute, PerForty };
inline constexpr SeasonView kSeasonViews[] = {SeasonView::Totals, SeasonView::PerGame, SeasonView::PerMinute,
                                              SeasonView::PerForty};
inline constexpr std::size_t kSeasonViewCount = std::size(kSeasonViews);
// The same in every language, for files: "total", "perGame", "perMinute", "per40".
[[nodiscard]] std::string_view seasonViewName(SeasonView view);

// By creation index 1..55.
struct SeasonColumn {
  int index;
  std::string_view header; // short, the same in both languages, where headerText is none
  Text headerText;
  int widthTwips; // of the players' table; 0: hidden
  bool isLeftAligned;
  std::string_view name; // unique, for command line and export: "No", "TGM", "F2PTS", "rating"
};
inline constexpr int kSeasonColumnCount = 55;
inline constexpr int kSeasonLineColumnCount = 53;
inline constexpr int kNumberColumn = 1;
inline constexpr int kNameColumn = 2;
inline constexpr int kTimeColumn = 3;
inline constexpr int kGamesColumn = 4;
inline constexpr int kFirstCountColumn = 5; // 5 to 52 hold what was counted
inline constexpr int kLastCountColumn = 52;
[[nodiscard]] std::span<const SeasonColumn, kSeasonColumnCount> seasonColumns();
enum class SeasonTable : std::uint8_t { Players, Lines };
// Header and width differ between the two tables in the first two columns.
[[nodiscard]] std::string seasonHeader(int column, SeasonTable table, const Texts& texts);
[[nodiscard]] int seasonWidthTwips(int column, SeasonTable table);
[[nodiscard]] const SeasonColumn& seasonColumn(int index);
[[nodiscard]] const SeasonColumn& seasonColumn(std::string_view name); // a name of the table

// What a cell holds, exactly: a fraction. `denominator` 0 where there is nothing to divide by (a percentage
// without attempts).
struct SeasonValue {
  std::int64_t numerator = 0;
  std::int64_t denominator = 1;
};
// Columns 3 to 52; seconds for the time.
[[nodiscard]] SeasonValue seasonValue(const SeasonRow& row, int column, SeasonView view);

[[nodiscard]] std::string seasonCell(const SeasonRow& row, int column, SeasonView view, const Texts& texts);
// The number by which a column sorts; text columns (2, 54, 55) sort by their text.
[[nodiscard]] double seasonSortValue(const SeasonRow& row, int column, SeasonView view);
[[nodiscard]] bool seasonColumnIsText(int column);
// The column of the attempts that a percentage is of; 0 for columns that are no percentages.
[[nodiscard]] int attemptsColumnOf(int column);

} // namespace hooptab
