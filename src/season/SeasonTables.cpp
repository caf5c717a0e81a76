#include "season/SeasonTables.h"

#include "appearance/relabel.h"
#include "game/TableKinds.h"
#include "insight/SignedText.h"
#include "scorecard/ColumnWords.h"
#include "season/SeasonDesk.h"
#include "season/SeasonWords.h"
#include "season/Standings.h"

#include <algorithm>
#include <limits>

namespace hooptab {

namespace {

const SeasonRow& rowOf(const Season& season, SeasonTable kind, int row) {
  const auto rows = kind == SeasonTable::Lines ? season.statistics().lines() : season.statistics().players();
  return rows[static_cast<std::size_t>(row)];
}

// The longest text that a column of numbers is likely to hold.
QString longestText(const Statistic* statistic, SeasonView view) {
  if (statistic == nullptr)
    return QStringLiteral("000");
  switch (statistic->kind) {
  case ValueKind::Time: return QStringLiteral("00000:00");
  case ValueKind::Percent: return QStringLiteral("100.0%");
  case ValueKind::Count: break;
  }
  return view == SeasonView::Totals ? QStringLiteral("00000") : QStringLiteral("00.00");
}

// Groups of four, so that their equal "PTS" headers stay apart: every other one is tinted.
bool isShaded(const Statistic* statistic) {
  return statistic != nullptr && statistic->group != nullptr &&
         (statistic->group - shotGroups().data()) % 2 == 0;
}

TableColumn columnOf(int index, SeasonTable kind, SeasonView view, const Settings& settings,
                     const Texts& texts, const OwnLabels& labels) {
  const SeasonColumn& column = seasonColumn(index);
  TableColumn shown;
  shown.header = toQt(seasonHeader(index, kind, texts));
  shown.toolTip =
      index == kNameColumn ? shown.header : toQt(seasonColumnWords(index, settings, texts, labels));
  shown.isText = seasonColumnIsText(index);
  shown.isLeftAligned = column.isLeftAligned;
  if (!shown.isText && !shown.isLeftAligned)
    shown.longest = longestText(column.statistic, view);
  if (column.statistic != nullptr)
    shown.kind = tableKind(column.statistic->kind);
  else if (!shown.isText && !shown.isLeftAligned)
    shown.kind = TableKind::Number;
  shown.isHidden = column.widthTwips == 0;
  shown.isShaded = isShaded(column.statistic);
  shown.isBold = column.name == "PTS";
  shown.name = toQt(column.name);
  return shown;
}

TableColumn textColumn(const QString& header, bool isLeftAligned = true) {
  TableColumn column;
  column.header = header;
  column.isText = true;
  column.isLeftAligned = isLeftAligned;
  return column;
}

TableColumn numberColumn(const QString& header, const QString& longest = QStringLiteral("0000")) {
  TableColumn column;
  column.header = header;
  column.longest = longest;
  column.kind = TableKind::Number;
  return column;
}

// Behind the season columns stand points while on court, the team, and the user's own rating.
enum class Behind { Nothing, PlusMinus, Team, OwnRating };
Behind behindColumns(SeasonTable table, int place) {
  return static_cast<Behind>(std::clamp(place - static_cast<int>(columnsOfTable(table).size()) + 1, 0, 3));
}
// At a place of the window's table that holds one of them.
int seasonColumnAt(SeasonTable table, int place) {
  return columnsOfTable(table)[static_cast<std::size_t>(place)];
}
constexpr double kLeast = std::numeric_limits<double>::lowest();

TableKind kindOf(int column) {
  if (column == kSeasonOwnColumn)
    return TableKind::Number;
  return tableKind(seasonColumn(column).statistic->kind);
}

const StatisticLeaders& leadersAt(const Season& season, SeasonView view, std::size_t statistic) {
  return season.leaders(view).statistics()[statistic];
}

} // namespace

QString capitalisedText(QString words) {
  if (!words.isEmpty())
    words.front() = words.front().toUpper();
  return words;
}

QString statisticName(int column, const Settings& settings, const Texts& texts, const OwnLabels& labels) {
  if (column == kSeasonOwnColumn)
    return toQt(texts.withPlaceholder(Text::OwnRatingBoth, ownRatingHead(settings.ownRating)));
  return capitalisedText(toQt(statisticTitle(*seasonColumn(column).statistic, labels, settings, texts)));
}

std::vector<TableColumn> gameListColumns(const Texts& texts) {
  std::vector<TableColumn> columns;
  for (const GameColumn& column : gameColumns()) {
    TableColumn& shown = columns.emplace_back();
    shown.header = column.headerText != Text::None ? caption(texts, column.headerText) : toQt(column.header);
    shown.name = toQt(column.name);
    shown.isText = gameColumnIsText(column.index);
    shown.isLeftAligned = column.isLeftAligned;
    shown.isHidden = column.widthTwips == 0;
    if (column.index == 1)
      shown.longest = QStringLiteral("0000-00-000000"); // with the mark of one that cannot be right
    else if (!shown.isText) {
      shown.longest = QStringLiteral("0000");
      shown.kind = TableKind::Number;
    }
  }
  return columns;
}

TableRows gameListRows(std::shared_ptr<const GameCatalogue> catalogue, std::vector<std::size_t> places,
                       std::optional<SeasonId> chosenTeam, const Texts& texts) {
  TableRows rows;
  rows.count = static_cast<int>(places.size());
  const auto shared = std::make_shared<const std::vector<std::size_t>>(std::move(places));
  const auto game = [catalogue, shared](int row) -> const ListedGame& {
    return catalogue->games()[(*shared)[static_cast<std::size_t>(row)]];
  };
  rows.text = [catalogue, game, chosenTeam, &texts](int row, int column) {
    return toQt(gameCell(*catalogue, game(row), column + 1, chosenTeam, texts));
  };
  rows.sortValue = [game](int row, int column) { return gameSortValue(game(row), column + 1); };
  rows.isMuted = [game](int row) { return game(row).copyOf.has_value(); };
  rows.isMarked = [game](int row) { return game(row).wrongCount > 0; };
  rows.toolTip = [catalogue, game, &texts](int row) -> QString {
    const ListedGame& shown = game(row);
    QString words = toQt(shown.path);
    if (shown.wrongCount > 0)
      words += u'\n' + toQt(catalogue->whyWrong(shown, texts));
    if (shown.copyOf)
      words += u'\n' + toQt(copyWords(*catalogue, shown, texts));
    if (!shown.outOfRange.empty())
      words += u'\n' + toQt(shown.outOfRange);
    return words + u'\n' + caption(texts, Text::OpensGame);
  };
  return rows;
}

std::vector<TableColumn> skippedColumns(const Texts& texts) {
  return {textColumn(caption(texts, Text::FileWord)), textColumn(caption(texts, Text::ReasonColumn))};
}

TableRows skippedRows(std::shared_ptr<const GameCatalogue> catalogue, const Texts& texts) {
  TableRows rows;
  rows.count = static_cast<int>(catalogue->skipped().size());
  rows.text = [catalogue, &texts](int row, int column) {
    const SkippedFile& file = catalogue->skipped()[static_cast<std::size_t>(row)];
    return column == 0 ? toQt(file.path) : caption(texts, skipReasonText(file.reason));
  };
  return rows;
}

QString plusMinusText(const SeasonRow& row, SeasonView view) {
  return toQt(seasonPlusMinusText(row, view));
}

TableColumn ownRatingColumn(const SeasonRating& rating, const Texts& texts) {
  TableColumn column = numberColumn(toQt(rating.head), QStringLiteral("−000.0"));
  column.toolTip = toQt(rating.words(texts));
  column.name = QStringLiteral("Own");
  column.isHidden = !rating.isThere();
  return column;
}

TableColumn plusMinusColumn(const Texts& texts) {
  TableColumn column = numberColumn(QStringLiteral("+/−"), QStringLiteral("+000.0"));
  column.toolTip = caption(texts, Text::PlusMinusTip);
  column.name = QStringLiteral("PlusMinus");
  return column;
}

std::vector<TableColumn> seasonTableColumns(SeasonTable kind, SeasonView view, const Season* season,
                                            const Settings& settings, const Texts& texts) {
  const OwnLabels labels = season == nullptr ? OwnLabels() : season->statistics().labels();
  std::vector<TableColumn> columns;
  for (const int index : columnsOfTable(kind))
    columns.push_back(columnOf(index, kind, view, settings, texts, labels));
  columns.push_back(plusMinusColumn(texts));
  TableColumn& team = columns.emplace_back(textColumn(caption(texts, Text::Team)));
  team.name = QStringLiteral("Team");
  team.isHidden = season == nullptr || season->statistics().teams().size() < 2;
  columns.push_back(ownRatingColumn(season == nullptr ? SeasonRating() : season->ownRating(), texts));
  return columns;
}

TableRows seasonTableRows(std::shared_ptr<const Season> season, SeasonTable kind, SeasonView view,
                          const Texts& texts) {
  const SeasonStatistics& statistics = season->statistics();
  TableRows rows;
  rows.count =
      static_cast<int>(kind == SeasonTable::Lines ? statistics.lines().size() : statistics.players().size());
  rows.isMuted = [season, kind, view](int row) {
    return season->minimum().isUnder(rowOf(*season, kind, row), kind, view);
  };
  rows.text = [season, kind, view, isMarked = rows.isMuted, &texts](int row, int column) -> QString {
    const SeasonRow& shown = rowOf(*season, kind, row);
    switch (behindColumns(kind, column)) {
    case Behind::OwnRating: return toQt(season->ownRating().text(shown, view));
    case Behind::PlusMinus: return plusMinusText(shown, view);
    case Behind::Team: return toQt(season->catalogue().teams()[shown.team].key);
    case Behind::Nothing: break;
    }
    const int shownColumn = seasonColumnAt(kind, column);
    QString text = toQt(seasonCell(shown, shownColumn, view, texts));
    return shownColumn == kNameColumn && isMarked(row) ? text + QStringLiteral(" *") : text;
  };
  // Names without their mark; a season has tens of thousands of lines, whose jerseys sort faster than names.
  rows.sortText = [season, kind, text = rows.text](int row, int column) -> QString {
    return column + 1 == kNameColumn ? toQt(rowOf(*season, kind, row).name) : text(row, column);
  };
  rows.sortValue = [season, kind, view](int row, int column) {
    const SeasonRow& shown = rowOf(*season, kind, row);
    switch (behindColumns(kind, column)) {
    case Behind::OwnRating: return season->ownRating().value(shown, view).value_or(kLeast);
    case Behind::PlusMinus: return seasonPlusMinus(shown, view).value_or(kLeast);
    case Behind::Team: return 0.0;
    case Behind::Nothing: break;
    }
    return seasonSortValue(shown, seasonColumnAt(kind, column), view);
  };
  rows.toolTip = [season, kind, &texts](int row) -> QString {
    const SeasonRow& shown = rowOf(*season, kind, row);
    return toQt(season->catalogue().teams()[shown.team].key) + QStringLiteral("  ") + toQt(shown.number) +
           u' ' + toQt(shown.players.empty() ? shown.name : shown.players) + u'\n' +
           caption(texts, Text::OpensPerson);
  };
  return rows;
}

std::vector<TableColumn> firstLeaderColumns(const Texts& texts) {
  return {textColumn(caption(texts, Text::StatisticColumn)), textColumn(caption(texts, Text::LeaderColumn)),
          numberColumn(caption(texts, Text::Value), QStringLiteral("0000:00"))};
}

TableRows firstLeaderRows(std::shared_ptr<const Season> season, SeasonView view, const Settings& settings,
                          const Texts& texts) {
  TableRows rows;
  rows.count = static_cast<int>(season->leaders(view).statistics().size());
  const auto first = [season, view](int row) -> const Leader* {
    const StatisticLeaders& statistic = leadersAt(*season, view, static_cast<std::size_t>(row));
    return statistic.leaders.empty() ? nullptr : &statistic.leaders.front();
  };
  rows.text = [season, view, first, &settings, &texts](int row, int column) {
    if (column == 0)
      return statisticName(leadersAt(*season, view, static_cast<std::size_t>(row)).column, settings, texts,
                           season->statistics().labels());
    const Leader* leader = first(row);
    if (leader == nullptr)
      return QString();
    return toQt(column == 1 ? leader->row->name : leader->value);
  };
  rows.sortValue = [first](int row, int) {
    const Leader* leader = first(row);
    return leader == nullptr ? -1.0 : leader->number;
  };
  rows.kind = [season, view](int row, int column) {
    return column == 2 ? kindOf(leadersAt(*season, view, static_cast<std::size_t>(row)).column)
                       : TableKind::Text;
  };
  return rows;
}

std::vector<TableColumn> leaderColumns(const Texts& texts) {
  TableColumn jersey = numberColumn(QStringLiteral("No"), QStringLiteral("000"));
  jersey.isLeftAligned = true;
  jersey.kind = TableKind::Text;
  TableColumn value = numberColumn(caption(texts, Text::Value), QStringLiteral("0000:00"));
  value.isBold = true;
  return {numberColumn(QStringLiteral("#"), QStringLiteral("000")),
          textColumn(caption(texts, Text::Team)),
          jersey,
          textColumn(caption(texts, Text::PlayerName)),
          numberColumn(caption(texts, Text::Games)),
          value};
}

TableRows leaderRows(std::shared_ptr<const Season> season, SeasonView view, std::size_t statistic,
                     const Texts& texts) {
  TableRows rows;
  rows.count = static_cast<int>(leadersAt(*season, view, statistic).leaders.size());
  const auto leader = [season, view, statistic](int row) -> const Leader& {
    return leadersAt(*season, view, statistic).leaders[static_cast<std::size_t>(row)];
  };
  rows.text = [season, leader](int row, int column) {
    const Leader& shown = leader(row);
    switch (column) {
    case 0: return QString::number(shown.rank);
    case 1: return toQt(season->catalogue().teams()[shown.row->team].key);
    case 2: return toQt(shown.row->number);
    case 3: return toQt(shown.row->name);
    case 4: return QString::number(shown.row->games);
    default: return toQt(shown.value);
    }
  };
  rows.sortValue = [view, leader](int row, int column) -> double {
    const Leader& shown = leader(row);
    switch (column) {
    case 0: return shown.rank;
    case 2: return seasonSortValue(*shown.row, kNumberColumn, view);
    case 4: return shown.row->games;
    default: return shown.number;
    }
  };
  const TableKind valueKind = kindOf(leadersAt(*season, view, statistic).column);
  rows.kind = [valueKind](int, int column) {
    constexpr int kValueColumn = 5;
    return column == kValueColumn       ? valueKind
           : column == 0 || column == 4 ? TableKind::Number
                                        : TableKind::Text;
  };
  rows.toolTip = [&texts](int) { return caption(texts, Text::OpensPerson); };
  return rows;
}

// The same words in both languages.
std::vector<TableColumn> recordColumns() {
  return {textColumn(QStringLiteral("WHAT")),
          numberColumn(QStringLiteral("RECORD"), QStringLiteral("000:00")),
          textColumn(QStringLiteral("WHERE"))};
}

TableRows recordRows(std::shared_ptr<const SeasonPerson> person) {
  TableRows rows;
  rows.count = static_cast<int>(Records::kCount);
  const auto record = [person](int row) -> const Record& {
    return person->records.records()[static_cast<std::size_t>(row)];
  };
  rows.text = [record](int row, int column) {
    const Record& shown = record(row);
    return column == 0 ? toQt(shown.what) : column == 1 ? toQt(shown.text()) : toQt(shown.where);
  };
  rows.sortValue = [record](int row, int) -> double { return record(row).value; };
  rows.kind = [record](int row, int column) {
    return column == 1 ? kindOf(record(row).column) : TableKind::Text;
  };
  return rows;
}

std::vector<TableColumn> resultColumns(const Settings& settings, const Texts& texts, const OwnLabels& labels,
                                       const SeasonRating& ownRating) {
  std::vector<TableColumn> columns;
  for (int index = 1; index <= resultColumnCount(); ++index) {
    const int shared = seasonColumnOfResult(index);
    if (shared != 0) {
      columns.push_back(columnOf(shared, SeasonTable::Players, SeasonView::Totals, settings, texts, labels));
      continue;
    }
    TableColumn& own = columns.emplace_back(textColumn(toQt(resultHeader(index, texts))));
    own.isText = index != 1; // the date sorts by its day
  }
  columns.push_back(plusMinusColumn(texts));
  columns.push_back(ownRatingColumn(ownRating, texts));
  return columns;
}

TableRows resultRows(std::shared_ptr<const SeasonPerson> person, const Texts& texts) {
  TableRows rows;
  rows.count = static_cast<int>(person->results.size());
  const auto result = [person](int row) -> const GameResult& {
    return person->results[static_cast<std::size_t>(row)];
  };
  rows.text = [person, result, &texts](int row, int column) {
    const SeasonRow shown = rowOfResult(result(row));
    return column < resultColumnCount()
               ? toQt(resultCell(person->season->catalogue(), result(row), column + 1, texts))
           : column == resultColumnCount()
               ? plusMinusText(shown, SeasonView::Totals)
               : toQt(person->season->ownRating().text(shown, SeasonView::Totals));
  };
  rows.sortValue = [person, result](int row, int column) {
    if (column < resultColumnCount())
      return resultSortValue(person->season->catalogue(), result(row), column + 1);
    const SeasonRow shown = rowOfResult(result(row));
    return (column == resultColumnCount() ? seasonPlusMinus(shown, SeasonView::Totals)
                                          : person->season->ownRating().value(shown, SeasonView::Totals))
        .value_or(kLeast);
  };
  // The best of a season, of what there are records of; of one game there is no best.
  rows.isHigh = [person, value = rows.sortValue](int row, int column) {
    const int shown = column < resultColumnCount() ? seasonColumnOfResult(column + 1) : 0;
    const auto& records = person->records.records();
    const auto record = std::ranges::find(records, shown, &Record::column);
    return shown != 0 && person->results.size() > 1 && record != records.end() && record->value > 0 &&
           value(row, column) == record->value;
  };
  rows.toolTip = [&texts](int) { return caption(texts, Text::OpensGame); };
  return rows;
}

} // namespace hooptab
