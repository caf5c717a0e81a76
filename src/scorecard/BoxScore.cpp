#include "scorecard/BoxScore.h"

#include "game/PlayerLookup.h"
#include "settings/ChoiceTexts.h"
#include "storage/Module1.h"

#include <algorithm>
#include <cstdio>

namespace hooptab {

namespace {

constexpr int kNumberColumn = 1;
constexpr int kNameColumn = 2;
constexpr int kPositionColumn = 43;

int widthOf(const Statistic& statistic) {
  if (statistic.isShotPart(ShotPart::Points))
    return 1147;
  if (statistic.header != Text::None) // words
    return statistic.kind == ValueKind::Time ? 1587 : 1235;
  return statistic.kind == ValueKind::Percent ? 1499 : 1058;
}

BoxColumn columnOf(const Statistic& statistic) {
  const bool isPoints = statistic.isShotPart(ShotPart::Points);
  return {statistic.boxColumn,
          isPoints ? "PTS" : statistic.gameName,
          statistic.header,
          widthOf(statistic),
          false,
          statistic.isShotPart(ShotPart::Made) || statistic.isShotPart(ShotPart::Attempted),
          statistic.gameName,
          &statistic};
}

// Collects rows, and in the total every entry, whether it has a row or not.
class Rows {
 public:
  template <class Entry>
  void add(BoxRow row, const Entry& entry, bool isShown) {
    row.numbers.counters += entry.counters;
    row.numbers.seconds = std::max(entry.seconds, 0);
    m_total.numbers.counters += entry.counters;
    m_total.numbers.seconds += row.numbers.seconds;
    m_total.foulsDrawn += row.foulsDrawn;
    m_total.blocksAgainst += row.blocksAgainst;
    if (isShown)
      m_rows.push_back(std::move(row));
  }
  std::vector<BoxRow> withTotal(const Texts& texts) && {
    m_total.name = texts.text(Text::Total);
    m_rows.push_back(std::move(m_total));
    return std::move(m_rows);
  }

 private:
  std::vector<BoxRow> m_rows;
  BoxRow m_total{BoxRowKind::Total, -1, {}, {}, kPositionWithoutName, {}};
};

} // namespace

double jerseySortValue(std::string_view jersey) {
  constexpr double kBehindNumbers = 1e10;
  constexpr double kBehindAll = 1e15;
  if (jersey.empty())
    return kBehindAll;
  if (const int number = Module1::wholeNumber(jersey); number >= 0)
    return number + static_cast<double>(jersey.size()) / 16; // at most nine digits, so below the next number
  double letters = 0;
  for (std::size_t i = 0; i < 4; ++i)
    letters = letters * 256 + (i < jersey.size() ? static_cast<unsigned char>(jersey[i]) : 0);
  return kBehindNumbers + letters;
}

std::vector<BoxRow> boxRows(const CountedGame& counted, Side team, BoxView view, const Texts& texts) {
  const auto& [game, state] = counted;
  const Roster& roster = game.roster[team];
  const auto& players = state.players[team];
  const auto& lines = state.lines[team];
  Rows rows;
  if (view == BoxView::Players) {
    const auto& extras = state.extras[team];
    const auto add = [&](BoxRow row, bool isShown) {
      const auto entry = static_cast<std::size_t>(row.entry);
      row.foulsDrawn = extras[entry].foulsDrawn;
      row.blocksAgainst = extras[entry].blocksAgainst;
      rows.add(std::move(row), players[entry], isShown);
    };
    for (int i = 1; i <= Roster::kLargestEntry; ++i) {
      if (const RosterPlayer* player = roster.player(i))
        add({BoxRowKind::Player, i, player->jersey, player->name, positionText(player->position, texts), {}},
            true);
    }
    add({BoxRowKind::OtherPlayers, 0, {}, std::string(texts.text(Text::Others)), kPositionWithoutName, {}},
        players[0].counters.hasAny() || extras[0] != PlayerExtras());
  } else {
    for (int i = 1; i <= state.usedLines[team]; ++i) {
      const LineEntry& line = lines[static_cast<std::size_t>(i)];
      rows.add({BoxRowKind::Line,
                i,
                std::to_string(i),
                jerseysOnCourt(line.list, roster, '-'),
                kPositionWithoutName,
                {}},
               line, line.seconds > 0 || line.counters.hasAny());
    }
    rows.add(
        {BoxRowKind::OtherLines, 0, {}, std::string(texts.text(Text::OtherLines)), kPositionWithoutName, {}},
        lines[0], lines[0].counters.hasAny());
  }
  return std::move(rows).withTotal(texts);
}

std::string_view boxRowKey(const BoxRow& row) {
  switch (row.kind) {
  case BoxRowKind::Player: return row.number;
  case BoxRowKind::Line: return row.name;
  default: return {};
  }
}

std::span<const BoxColumn> boxColumns() {
  static const auto kColumns = [] {
    std::vector<BoxColumn> columns = {
        {kNumberColumn, "No", Text::None, 1058, true, false, "No", nullptr},
        {kNameColumn, "Nom", Text::PlayerName, 3528, true, false, "Name", nullptr},
        {kTimeSortColumn, "TempsInv", Text::None, 0, false, false, "seconds", nullptr},
        {kPositionColumn, "Pos", Text::None, 1764, false, false, "Pos", nullptr},
    };
    for (const Statistic& statistic : statistics()) {
      if (statistic.boxColumn > 0)
        columns.push_back(columnOf(statistic));
    }
    std::ranges::sort(columns, {}, &BoxColumn::index);
    return columns;
  }();
  return kColumns;
}

const BoxColumn& boxColumn(int index) {
  return boxColumns()[static_cast<std::size_t>(index - 1)];
}

const std::vector<int>& boxDisplayOrder() {
  // The columns are moved one after another, each to its place among those that stand there by then.
  static const auto kOrder = [] {
    constexpr std::pair<int, int> kMoves[] = {
        {43, 3},  {48, 6},  {34, 7},  {21, 20}, {22, 21}, {23, 22}, {24, 23}, {35, 28}, {36, 29}, {37, 30},
        {38, 31}, {39, 32}, {40, 33}, {41, 34}, {42, 35}, {44, 36}, {45, 37}, {46, 38}, {47, 39}};
    std::vector<int> columns;
    for (const BoxColumn& column : boxColumns())
      columns.push_back(column.index);
    for (const auto& [column, position] : kMoves) {
      columns.erase(std::ranges::find(columns, column));
      columns.insert(columns.begin() + position - 1, column);
    }
    return columns;
  }();
  return kOrder;
}

std::string boxCell(const BoxRow& row, int column) {
  switch (column) {
  case kNumberColumn: return row.number;
  case kNameColumn: return row.name;
  case kPositionColumn: return row.position;
  case kTimeSortColumn: {
    char text[16];
    std::snprintf(text, sizeof text, "%06d", row.numbers.seconds);
    return text;
  }
  default: break;
  }
  const Statistic& statistic = *boxColumn(column).statistic;
  return valueText(statistic.value(row.numbers), statistic.kind);
}

double boxSortValue(const BoxRow& row, int column) {
  if (column == kNumberColumn)
    return jerseySortValue(row.number);
  if (column == kTimeSortColumn)
    return row.numbers.seconds;
  const Statistic* statistic = boxColumn(column).statistic;
  return statistic == nullptr ? 0 : sortValue(statistic->value(row.numbers));
}

bool boxColumnIsText(int column) {
  return column == kNameColumn || column == kPositionColumn;
}

} // namespace hooptab
