#include "season/SeasonColumns.h"

#include "insight/SignedText.h"
#include "settings/ChoiceTexts.h"
#include "storage/Module1.h"

#include <algorithm>
#include <array>
#include <stdexcept>

namespace hooptab {

namespace {

// What divides the counts of a row without time, so that its averages show as zero.
constexpr std::int64_t kDivisorWithoutTime = 9'999'999;

constexpr int kRankColumn = 53;
constexpr int kPositionColumn = 54;
constexpr int kPositionHistoryColumn = 55;

int widthOf(const Statistic& statistic) {
  if (statistic.isShotPart(ShotPart::Points))
    return 1323;
  if (statistic.header != Text::None) // words
    return statistic.kind == ValueKind::Time ? 1411 : 1235;
  return statistic.kind == ValueKind::Percent ? 1499 : 1058;
}

std::string positionsText(const std::vector<int>& positions, const Texts& texts) {
  std::string text;
  for (const int position : positions)
    text += (text.empty() ? "" : "/") + positionText(position, texts);
  return text;
}

} // namespace

std::string_view seasonViewName(SeasonView view) {
  constexpr std::string_view kNames[] = {"total", "perGame", "perMinute", "per40"};
  return kNames[static_cast<std::size_t>(view)];
}

std::span<const SeasonColumn> seasonColumns() {
  static const auto kColumns = [] {
    std::vector<SeasonColumn> columns = {
        {kNumberColumn, "No", Text::None, 794, true, "No", nullptr},
        {kNameColumn, "Nom", Text::PlayerName, 3704, true, "Name", nullptr},
        {kGamesColumn, "P", Text::Games, 706, false, "G", nullptr},
        {kRankColumn, "#", Text::None, 706, false, "#", nullptr},
        {kPositionColumn, "Pos", Text::None, 1764, false, "Pos", nullptr},
        {kPositionHistoryColumn, "PosHist", Text::None, 0, false, "PosHist", nullptr},
    };
    for (const Statistic& statistic : statistics()) {
      const bool isPoints = statistic.isShotPart(ShotPart::Points);
      columns.push_back({statistic.seasonColumn, isPoints ? "PTS" : statistic.name, statistic.header,
                         widthOf(statistic), false, statistic.name, &statistic});
    }
    std::ranges::sort(columns, {}, &SeasonColumn::index);
    return columns;
  }();
  return kColumns;
}

const std::vector<int>& columnsOfTable(SeasonTable table) {
  static const auto kOfTables = [] {
    std::array<std::vector<int>, 2> columns;
    for (const SeasonColumn& column : seasonColumns()) {
      columns[0].push_back(column.index);
      if (column.index != kPositionColumn && column.index != kPositionHistoryColumn)
        columns[1].push_back(column.index);
    }
    return columns;
  }();
  return kOfTables[table == SeasonTable::Lines ? 1 : 0];
}

const std::vector<int>& countColumns() {
  static const auto kColumns = [] {
    std::vector<int> columns;
    for (const Statistic& statistic : statistics()) {
      if (statistic.kind != ValueKind::Time)
        columns.push_back(statistic.seasonColumn);
    }
    return columns;
  }();
  return kColumns;
}

std::string seasonHeader(int column, SeasonTable table, const Texts& texts) {
  const SeasonColumn& shown = seasonColumn(column);
  if (column == kNameColumn && table == SeasonTable::Lines)
    return std::string(texts.text(Text::Line));
  return std::string(shown.headerText != Text::None ? texts.text(shown.headerText) : shown.header);
}

int seasonWidthTwips(int column, SeasonTable table) {
  constexpr int kLineNumberWidth = 750;
  constexpr int kLineNameWidth = 3087;
  if (table == SeasonTable::Lines && column == kNumberColumn)
    return kLineNumberWidth;
  if (table == SeasonTable::Lines && column == kNameColumn)
    return kLineNameWidth;
  return seasonColumn(column).widthTwips;
}

const SeasonColumn& seasonColumn(int index) {
  return seasonColumns()[static_cast<std::size_t>(index - 1)];
}

const SeasonColumn& seasonColumn(std::string_view name) {
  const auto found = std::ranges::find(seasonColumns(), name, &SeasonColumn::name);
  if (found == seasonColumns().end())
    throw std::invalid_argument("no season column " + std::string(name));
  return *found;
}

StatisticValue seasonValue(const SeasonRow& row, int column, SeasonView view) {
  if (column == kGamesColumn)
    return {row.games};
  const Statistic& statistic = *seasonColumn(column).statistic;
  const StatisticValue value = statistic.value(row.numbers);
  if (statistic.kind == ValueKind::Percent || view == SeasonView::Totals)
    return value;
  if (view == SeasonView::PerGame)
    return {value.numerator, row.games};
  if (statistic.kind == ValueKind::Time)
    return value;
  constexpr std::int64_t kMinute = 60;
  constexpr std::int64_t kForty = 40 * kMinute;
  return row.numbers.seconds > 0
             ? StatisticValue{value.numerator * (view == SeasonView::PerForty ? kForty : kMinute),
                              row.numbers.seconds}
             : StatisticValue{value.numerator, kDivisorWithoutTime};
}

int seasonDecimals(SeasonView view) {
  switch (view) {
  case SeasonView::Totals: return 0;
  case SeasonView::PerGame:
  case SeasonView::PerForty: return 1;
  case SeasonView::PerMinute: break;
  }
  return 2;
}

std::optional<double> seasonPlusMinus(const SeasonRow& row, SeasonView view) {
  const std::optional<int> sum = row.plusMinus();
  const auto divided = [&](double count) {
    return sum && count > 0 ? std::optional(*sum / count) : std::nullopt;
  };
  switch (view) {
  case SeasonView::Totals: break;
  case SeasonView::PerGame: return divided(row.games);
  case SeasonView::PerMinute: return divided(row.numbers.seconds / 60.0);
  case SeasonView::PerForty: return divided(row.numbers.seconds / 2400.0);
  }
  return sum;
}

std::string seasonPlusMinusText(const SeasonRow& row, SeasonView view) {
  const std::optional<double> value = seasonPlusMinus(row, view);
  return value ? signedText(*value, seasonDecimals(view)) : "–";
}

std::string seasonCell(const SeasonRow& row, int column, SeasonView view, const Texts& texts) {
  switch (column) {
  case kNumberColumn: return row.number;
  case kNameColumn: return row.players.empty() ? row.name : row.players;
  case kGamesColumn: return std::to_string(row.games);
  case kRankColumn: return std::to_string(row.rank);
  case kPositionColumn: return positionText(row.positions.empty() ? -1 : row.positions.back(), texts);
  case kPositionHistoryColumn: return positionsText(row.positions, texts);
  default: break;
  }
  const StatisticValue value = seasonValue(row, column, view);
  switch (seasonColumn(column).statistic->kind) {
  case ValueKind::Percent: return valueText(value, ValueKind::Percent);
  case ValueKind::Time:
    return view == SeasonView::PerMinute || view == SeasonView::PerForty
               ? "--"
               : valueText({Module1::roundedQuotient(value.numerator, value.denominator)}, ValueKind::Time);
  case ValueKind::Count: break;
  }
  return Module1::quotientText(value.numerator, value.denominator, seasonDecimals(view));
}

double seasonSortValue(const SeasonRow& row, int column, SeasonView view) {
  switch (column) {
  case kNumberColumn: return jerseySortValue(row.number);
  case kRankColumn: return row.rank;
  case kNameColumn:
  case kPositionColumn:
  case kPositionHistoryColumn: return 0;
  default: return sortValue(seasonValue(row, column, view));
  }
}

bool seasonColumnIsText(int column) {
  return column == kNameColumn || column == kPositionColumn || column == kPositionHistoryColumn;
}

} // namespace hooptab
