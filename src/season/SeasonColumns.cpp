#include "season/SeasonColumns.h"

#include "settings/ChoiceTexts.h"
#include "storage/Module1.h"

#include <algorithm>
#include <array>
#include <stdexcept>

namespace hooptab {

namespace {

// What divides the counts of a row without time, so that its averages show as zero.
constexpr std::int64_t kDivisorWithoutTime = 9'999'999;

enum class Cell : std::uint8_t {
  Number,
  Name,
  Time,
  Games,
  Count,
  Rating,
  Made,
  Attempted,
  Percent,
  Points,
  TotalRebounds,
  Rank,
  Position,
  PositionHistory,
};

constexpr ShotKinds kTwo = shotKinds({EventCode::GFG});
constexpr ShotKinds kThree = shotKinds({EventCode::GF3});
constexpr ShotKinds kFreeThrow = shotKinds({EventCode::GFT});
constexpr ShotKinds kFieldGoal = kTwo | kThree; // those with a place on the court
constexpr ShotKinds kLayupLeft = shotKinds({EventCode::GLG});
constexpr ShotKinds kLayupRight = shotKinds({EventCode::GLD});
constexpr ShotKinds kPutBack = shotKinds({EventCode::GPB});
constexpr ShotKinds kDunk = shotKinds({EventCode::GDK});

struct Column {
  SeasonColumn shown;
  Cell cell;
  ShotKinds kinds = 0;
  Counter counter = Counter::PF;
};

constexpr Column count(int index, std::string_view name, Counter counter) {
  return {{index, name, Text::None, 1058, false, name}, Cell::Count, 0, counter};
}
constexpr Column made(int index, std::string_view name, ShotKinds kinds) {
  return {{index, name, Text::None, 1058, false, name}, Cell::Made, kinds};
}
constexpr Column attempted(int index, std::string_view name, ShotKinds kinds) {
  return {{index, name, Text::None, 1058, false, name}, Cell::Attempted, kinds};
}
constexpr Column percent(int index, std::string_view name, ShotKinds kinds) {
  return {{index, name, Text::None, 1499, false, name}, Cell::Percent, kinds};
}
constexpr Column points(int index, std::string_view name, ShotKinds kinds) {
  return {{index, "PTS", Text::None, 1323, false, name}, Cell::Points, kinds};
}

constexpr std::array<Column, kSeasonColumnCount> kColumns = {{
    {{1, "No", Text::None, 794, true, "No"}, Cell::Number},
    {{2, "Nom", Text::PlayerName, 3704, true, "Name"}, Cell::Name},
    {{3, "Temps", Text::Time, 1411, false, "Time"}, Cell::Time},
    {{4, "P", Text::Games, 706, false, "G"}, Cell::Games},
    count(5, "PF", Counter::PF),
    count(6, "TF", Counter::TF),
    {{7, "Eff", Text::Rating, 1235, false, "rating"}, Cell::Rating},
    made(8, "TGM", kAllShotKinds),
    attempted(9, "TGA", kAllShotKinds),
    percent(10, "%", kAllShotKinds),
    points(11, "PTS", kAllShotKinds),
    made(12, "F2M", kTwo),
    attempted(13, "F2A", kTwo),
    percent(14, "F2%", kTwo),
    points(15, "F2PTS", kTwo),
    made(16, "F3M", kThree),
    attempted(17, "F3A", kThree),
    percent(18, "F3%", kThree),
    points(19, "F3PTS", kThree),
    made(20, "FTM", kFreeThrow),
    attempted(21, "FTA", kFreeThrow),
    percent(22, "FT%", kFreeThrow),
    points(23, "FTPTS", kFreeThrow),
    made(24, "FGM", kFieldGoal),
    attempted(25, "FGA", kFieldGoal),
    percent(26, "FG%", kFieldGoal),
    points(27, "FGPTS", kFieldGoal),
    made(28, "LLM", kLayupLeft),
    attempted(29, "LLA", kLayupLeft),
    percent(30, "LL%", kLayupLeft),
    points(31, "LLPTS", kLayupLeft),
    made(32, "LRM", kLayupRight),
    attempted(33, "LRA", kLayupRight),
    percent(34, "LR%", kLayupRight),
    points(35, "LRPTS", kLayupRight),
    made(36, "PBM", kPutBack),
    attempted(37, "PBA", kPutBack),
    percent(38, "PB%", kPutBack),
    points(39, "PBPTS", kPutBack),
    made(40, "DKM", kDunk),
    attempted(41, "DKA", kDunk),
    percent(42, "DK%", kDunk),
    points(43, "DKPTS", kDunk),
    count(44, "Ast", Counter::Ast),
    count(45, "BS", Counter::BS),
    count(46, "ST", Counter::ST),
    count(47, "TO", Counter::TO),
    count(48, "OR", Counter::OR),
    count(49, "DR", Counter::DR),
    {{50, "TR", Text::None, 1058, false, "TR"}, Cell::TotalRebounds},
    count(51, "U1", Counter::S1),
    count(52, "U2", Counter::S2),
    {{53, "#", Text::None, 706, false, "#"}, Cell::Rank},
    {{54, "Pos", Text::None, 1764, false, "Pos"}, Cell::Position},
    {{55, "PosHist", Text::None, 0, false, "PosHist"}, Cell::PositionHistory},
}};

constexpr auto kShownColumns = [] {
  std::array<SeasonColumn, kSeasonColumnCount> columns = {};
  for (std::size_t i = 0; i < columns.size(); ++i)
    columns[i] = kColumns[i].shown;
  return columns;
}();

const Column& columnAt(int index) {
  return kColumns.at(static_cast<std::size_t>(index - 1));
}

std::int64_t counted(const BoxNumbers& numbers, const Column& column) {
  switch (column.cell) {
  case Cell::Time: return numbers.seconds;
  case Cell::Count: return numbers.counters[column.counter];
  case Cell::Rating: return numbers.rating();
  case Cell::Made: return numbers.made(column.kinds);
  case Cell::Attempted: return numbers.attempted(column.kinds);
  case Cell::Points: return numbers.points(column.kinds);
  case Cell::TotalRebounds: return numbers.rebounds();
  default: return 0;
  }
}

int decimalsOf(SeasonView view) {
  switch (view) {
  case SeasonView::Totals: return 0;
  case SeasonView::PerGame:
  case SeasonView::PerForty: return 1;
  case SeasonView::PerMinute: break;
  }
  return 2;
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

std::span<const SeasonColumn, kSeasonColumnCount> seasonColumns() {
  return kShownColumns;
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
  return kShownColumns.at(static_cast<std::size_t>(index - 1));
}

const SeasonColumn& seasonColumn(std::string_view name) {
  const auto* const found = std::ranges::find(kShownColumns, name, &SeasonColumn::name);
  if (found == kShownColumns.end())
    throw std::invalid_argument("no season column " + std::string(name));
  return *found;
}

SeasonValue seasonValue(const SeasonRow& row, int column, SeasonView view) {
  const Column& wanted = columnAt(column);
  if (wanted.cell == Cell::Games)
    return {row.games, 1};
  if (wanted.cell == Cell::Percent)
    return {row.numbers.made(wanted.kinds), row.numbers.attempted(wanted.kinds)};
  const std::int64_t value = counted(row.numbers, wanted);
  if (view == SeasonView::PerGame)
    return {value, row.games};
  if (view != SeasonView::Totals && wanted.cell != Cell::Time) {
    constexpr std::int64_t kMinute = 60;
    constexpr std::int64_t kForty = 40 * kMinute;
    return row.numbers.seconds > 0
               ? SeasonValue{value * (view == SeasonView::PerForty ? kForty : kMinute), row.numbers.seconds}
               : SeasonValue{value, kDivisorWithoutTime};
  }
  return {value, 1};
}

std::string seasonCell(const SeasonRow& row, int column, SeasonView view, const Texts& texts) {
  const Cell cell = columnAt(column).cell;
  switch (cell) {
  case Cell::Number: return row.number;
  case Cell::Name: return row.players.empty() ? row.name : row.players;
  case Cell::Rank: return std::to_string(row.rank);
  case Cell::Position: return positionText(row.positions.empty() ? -1 : row.positions.back(), texts);
  case Cell::PositionHistory: return positionsText(row.positions, texts);
  default: break;
  }
  const SeasonValue value = seasonValue(row, column, view);
  switch (cell) {
  case Cell::Games: return std::to_string(value.numerator);
  case Cell::Percent:
    return Module1::percentText(static_cast<int>(value.numerator), static_cast<int>(value.denominator));
  case Cell::Time:
    return view == SeasonView::PerMinute || view == SeasonView::PerForty
               ? "--"
               : Module1::clockText(
                     static_cast<int>(Module1::roundedQuotient(value.numerator, value.denominator)));
  default: return Module1::quotientText(value.numerator, value.denominator, decimalsOf(view));
  }
}

double seasonSortValue(const SeasonRow& row, int column, SeasonView view) {
  switch (columnAt(column).cell) {
  case Cell::Number: return jerseySortValue(row.number);
  case Cell::Rank: return row.rank;
  case Cell::Name:
  case Cell::Position:
  case Cell::PositionHistory: return 0;
  default: break;
  }
  const SeasonValue value = seasonValue(row, column, view);
  return value.denominator > 0 ? static_cast<double>(value.numerator) / static_cast<double>(value.denominator)
                               : -1; // no attempt comes below 0 %
}

int attemptsColumnOf(int column) {
  return columnAt(column).cell == Cell::Percent ? column - 1 : 0; // made, attempted, percentage, points
}

bool seasonColumnIsText(int column) {
  const Cell cell = columnAt(column).cell;
  return cell == Cell::Name || cell == Cell::Position || cell == Cell::PositionHistory;
}

} // namespace hooptab
