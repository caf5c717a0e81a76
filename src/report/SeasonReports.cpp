#include "report/SeasonReports.h"

#include "report/PlayerSheet.h"
#include "report/ReportWords.h"
#include "report/ScoutSheet.h"
#include "scorecard/ColumnWords.h"
#include "season/GameColumns.h"
#include "season/GameSeries.h"
#include "season/Leaders.h"
#include "season/Records.h"
#include "season/SeasonColumns.h"
#include "season/SeasonShots.h"
#include "season/SeasonWords.h"
#include "season/TeamStudy.h"
#include "settings/CountWords.h"
#include "storage/Module1.h"

#include <algorithm>
#include <utility>

namespace hooptab {

namespace {

constexpr Text kWinLossTie[] = {Text::WinShort, Text::LossShort, Text::TieShort};
constexpr Text kViewTitles[] = {Text::Total, Text::AveragePerGame, Text::AveragePerMinute,
                                Text::PerForty}; // by SeasonView

constexpr SeasonReportName kReports[] = {
    {SeasonReport::TeamSummary, Text::TeamSummary, "team-summary"},
    {SeasonReport::TeamDetail, Text::TeamDetail, "team-detail"},
    {SeasonReport::PlayerShots, Text::PlayerShots, "player-shots"},
    {SeasonReport::LineShots, Text::LineShots, "line-shots"},
    {SeasonReport::PlayerOther, Text::PlayerOther, "player-other"},
    {SeasonReport::LineOther, Text::LineOther, "line-other"},
    {SeasonReport::LeadersTotal, Text::LeadersTotal, "leaders"},
    {SeasonReport::LeadersPerGame, Text::LeadersPerGame, "leaders-per-game"},
    {SeasonReport::LeadersPerMinute, Text::LeadersPerMinute, "leaders-per-minute"},
    {SeasonReport::Player, Text::PlayerReport, "player"},
    {SeasonReport::PlayerSheet, Text::PlayerSheetReport, "player-sheet"},
    {SeasonReport::Line, Text::LineReport, "line"},
    {SeasonReport::Scout, Text::ScoutReport, "scout"},
};

std::string text(const Texts& texts, Text which) {
  return std::string(texts.text(which));
}

const ShotGroup* groupOf(int column) {
  if (column == kSeasonOwnColumn)
    return nullptr;
  const Statistic* statistic = seasonColumn(column).statistic;
  return statistic == nullptr ? nullptr : statistic->group;
}

bool isPercent(int column) {
  return column != kSeasonOwnColumn && seasonColumn(column).statistic->kind == ValueKind::Percent;
}

// A cell that is shown as the season's table shows it, with the exact number behind it.
ReportCell cellOf(const SeasonRow& row, int column, SeasonView view, const Texts& texts) {
  ReportCell cell = textCell(seasonCell(row, column, view, texts));
  const Statistic* statistic = seasonColumn(column).statistic;
  const bool isPerTime = view == SeasonView::PerMinute || view == SeasonView::PerForty;
  if (column == kNumberColumn || seasonColumnIsText(column) ||
      (statistic != nullptr && statistic->kind == ValueKind::Time && isPerTime))
    return cell;
  cell.kind = statistic == nullptr ? ReportCell::Kind::Number : kindOfCell(statistic->kind);
  cell.value = statistic != nullptr && seasonValue(row, column, view).denominator == 0
                   ? 0
                   : seasonSortValue(row, column, view);
  return cell;
}

class SeasonReportMaker {
 public:
  SeasonReportMaker(const SeasonStatistics& statistics, const SeasonReportChoice& choice,
                    const Settings& settings, const Texts& texts)
      : m_statistics(statistics), m_catalogue(statistics.catalogue()), m_choice(choice), m_settings(settings),
        m_texts(texts) {}

  Report make(SeasonReport which) {
    const auto* name = std::ranges::find(kReports, which, &SeasonReportName::report);
    m_report.title = text(m_texts, name->text);
    m_report.subject = subject();
    m_report.pageWords = text(m_texts, Text::PageOf);
    switch (which) {
    case SeasonReport::TeamSummary: addGames(); break;
    case SeasonReport::TeamDetail:
      addGames();
      if (m_choice.team)
        addShots(shotsOfTeam(m_catalogue, m_statistics.games(), *m_choice.team));
      addTeams();
      break;
    case SeasonReport::PlayerShots: addRows(SeasonTable::Players, true); break;
    case SeasonReport::LineShots: addRows(SeasonTable::Lines, true); break;
    case SeasonReport::PlayerOther: addRows(SeasonTable::Players, false); break;
    case SeasonReport::LineOther: addRows(SeasonTable::Lines, false); break;
    case SeasonReport::LeadersTotal: addLeaders(SeasonView::Totals); break;
    case SeasonReport::LeadersPerGame: addLeaders(SeasonView::PerGame); break;
    case SeasonReport::LeadersPerMinute: addLeaders(SeasonView::PerMinute); break;
    case SeasonReport::Player: addPerformance(SeasonTable::Players); break;
    case SeasonReport::PlayerSheet: addSheet(); break;
    case SeasonReport::Line: addPerformance(SeasonTable::Lines); break;
    case SeasonReport::Scout: addScout(); break;
    }
    m_report.fileName = proposedFileName(m_whose + ' ' + m_report.title);
    return std::move(m_report);
  }

 private:
  // "LYNX-AAA, 34 Games, 2026-10-02 – 2027-03-14".
  std::string subject() {
    m_whose = m_choice.team ? m_catalogue.teams()[*m_choice.team].key : text(m_texts, Text::SeasonTitle);
    return m_whose + ", " + selection();
  }
  std::string selection() const { return selection(m_statistics.games()); }
  std::string selection(std::span<const std::size_t> games) const {
    std::string words = labelled(Text::GamesWord, std::to_string(games.size()), m_texts);
    std::string first;
    std::string last;
    for (const std::size_t place : games) {
      const ListedGame& game = m_catalogue.games()[place];
      if (!game.day)
        continue;
      first = first.empty() ? game.date : first;
      last = game.date;
    }
    return first.empty() ? words : words + ", " + first + (first == last ? "" : " – " + last);
  }

  void addGames() {
    ReportTable table;
    table.title = text(m_texts, Text::GamesWord);
    for (const GameColumn& column : gameColumns()) {
      if (column.widthTwips > 0)
        table.columns.push_back(
            {std::string(column.headerText != Text::None ? m_texts.text(column.headerText) : column.header),
             std::string(column.name),
             {},
             column.isLeftAligned || gameColumnIsText(column.index),
             column.index == 1});
    }
    for (const std::size_t place : m_statistics.games()) {
      const ListedGame& game = m_catalogue.games()[place];
      ReportRow& row = table.rows.emplace_back();
      for (const GameColumn& column : gameColumns()) {
        if (column.widthTwips == 0)
          continue;
        ReportCell cell = textCell(gameCell(m_catalogue, game, column.index, m_choice.team, m_texts));
        if (!gameColumnIsText(column.index) && Module1::wholeNumber(cell.text) >= 0) {
          cell.kind = ReportCell::Kind::Number;
          cell.value = Module1::wholeNumber(cell.text);
        }
        row.cells.push_back(std::move(cell));
      }
    }
    m_report.blocks.push_back(std::move(table));
  }

  // Of a column of the season tables, or of the user's own rating.
  ReportCell cellAt(const SeasonRow& row, int column, SeasonView view) const {
    return column == kSeasonOwnColumn ? ownRatingCell(m_choice.ownRating, row, view)
                                      : cellOf(row, column, view, m_texts);
  }
  ReportColumn columnOf(int index) const {
    if (index == kSeasonOwnColumn)
      return {m_choice.ownRating.head, "own", m_choice.ownRating.words(m_texts)};
    const SeasonColumn& column = seasonColumn(index);
    return {seasonHeader(index, SeasonTable::Players, m_texts), std::string(column.name),
            seasonColumnWords(index, m_settings, m_texts, m_statistics.labels()), seasonColumnIsText(index)};
  }
  // With the user's own rating, if there is one, beside the built-in one.
  std::vector<int> withOwnRating(std::vector<int> columns) const {
    const auto rating = std::ranges::find(columns, seasonColumn("rating").index);
    if (m_choice.ownRating.isThere() && rating != columns.end())
      columns.insert(rating + 1, kSeasonOwnColumn);
    return columns;
  }

  // The columns of the season tables; `begin` are those that a table has before them.
  ReportTable tableOf(std::vector<ReportColumn> begin, const std::vector<int>& columns) const {
    ReportTable table;
    table.columns = std::move(begin);
    table.groups.push_back({"", table.columns.size()});
    const ShotGroup* open = nullptr;
    for (const int index : columns) {
      table.columns.push_back(columnOf(index));
      const ShotGroup* group = groupOf(index);
      if (group != open || table.groups.size() == 1)
        table.groups.push_back(
            {group == nullptr ? std::string() : groupTitle(*group, m_texts), 0, !isTried(group)});
      ++table.groups.back().columns;
      open = group;
    }
    return table;
  }
  // Whether anybody of the season tried such a shot, so that all its tables have the same columns.
  bool isTried(const ShotGroup* group) const {
    return group == nullptr || std::ranges::any_of(m_statistics.teams(), [&](const SeasonTeamRow& team) {
             return team.numbers.attempted(group->kinds) > 0;
           });
  }
  std::vector<int> columnsOf(bool ofShots) const {
    std::vector<int> columns = {kTimeColumn, kGamesColumn};
    for (const int column : countColumns()) {
      if ((groupOf(column) != nullptr) == ofShots)
        columns.push_back(column);
    }
    return withOwnRating(std::move(columns));
  }
  ReportColumn repeated(const std::string& header, const char* name) const {
    return {header, name, {}, true, true};
  }

  void addTeams() {
    std::vector<ReportColumn> begin = {repeated(text(m_texts, Text::Team), "Team")};
    for (std::size_t i = 0; i < 3; ++i)
      begin.push_back({text(m_texts, kWinLossTie[i]), std::string(1, "WLT"[i])});
    begin.push_back({"+", "PointsFor", text(m_texts, Text::PointsFor)});
    begin.push_back({"-", "PointsAgainst", text(m_texts, Text::PointsAgainst)});
    std::vector<int> columns = {kGamesColumn};
    columns.insert(columns.end(), countColumns().begin(), countColumns().end());
    columns = withOwnRating(std::move(columns));
    const ReportTable empty = tableOf(begin, columns);
    for (const SeasonView view : {SeasonView::Totals, SeasonView::PerGame}) {
      ReportTable table = empty;
      table.title = text(m_texts, Text::TeamStatistics) + " – " + titleOf(view);
      for (const SeasonTeamRow& team : m_statistics.teams()) {
        SeasonRow sums; // a team's sums, as a row of the season tables
        sums.games = team.games;
        sums.numbers = team.numbers;
        ReportRow& row = table.rows.emplace_back();
        row.cells = {textCell(m_catalogue.teams()[team.team].key),
                     numberCell(team.wins),
                     numberCell(team.losses),
                     numberCell(team.ties),
                     numberCell(team.pointsFor),
                     numberCell(team.pointsAgainst)};
        for (const int column : columns)
          row.cells.push_back(cellAt(sums, column, view));
      }
      m_report.blocks.push_back(std::move(table));
    }
    addNotes(m_report, empty, m_texts);
  }

  std::string titleOf(SeasonView view) const {
    return text(m_texts, kViewTitles[static_cast<std::size_t>(view)]);
  }

  // By points as the view has them, those under the minimum last: who asks for the first rows wants the best.
  struct RankedRow {
    const SeasonRow* row;
    bool isMarked;
  };
  std::vector<RankedRow> ranked(std::span<const SeasonRow> rows, SeasonTable which, SeasonView view) const {
    std::vector<RankedRow> order;
    for (const SeasonRow& row : rows)
      order.push_back({&row, m_choice.minimum.isUnder(row, which, view)});
    const int points = seasonColumn("PTS").index;
    if (view != SeasonView::Totals) // those come in their order
      std::ranges::stable_sort(order, {}, [&](const RankedRow& ranked) {
        return std::pair(ranked.isMarked, -seasonSortValue(*ranked.row, points, view));
      });
    return order;
  }

  void addRows(SeasonTable which, bool ofShots) {
    const auto rows = which == SeasonTable::Players ? m_statistics.players() : m_statistics.lines();
    const ReportTable empty = rowTable(which, ofShots);
    for (const SeasonView view : kSeasonViews) {
      if (which == SeasonTable::Lines && view == SeasonView::PerForty)
        continue; // few lines play that long
      ReportTable table = empty;
      table.title = titleOf(view);
      table.isRanked = true;
      bool hasMarks = false;
      for (const auto& [row, isMarked] : ranked(rows, which, view)) {
        table.rows.push_back(reportRow(*row, ofShots, view, isMarked));
        hasMarks = hasMarks || isMarked;
      }
      m_report.blocks.push_back(std::move(table));
      if (hasMarks)
        addNote(markWords(m_choice.minimum, which, view, m_texts));
    }
    addNotes(m_report, empty, m_texts);
  }
  void addNote(std::string words) {
    m_report.blocks.push_back(ReportParagraph{ReportParagraph::Style::Note, std::move(words)});
  }
  ReportTable rowTable(SeasonTable which, bool ofShots) const {
    std::vector<ReportColumn> begin = {repeated("No", "No"),
                                       repeated(seasonHeader(kNameColumn, which, m_texts), "Name")};
    if (!m_choice.team)
      begin.insert(begin.begin(), repeated(text(m_texts, Text::Team), "Team"));
    return tableOf(std::move(begin), columnsOf(ofShots));
  }
  ReportRow reportRow(const SeasonRow& row, bool ofShots, SeasonView view, bool isMarked) const {
    ReportRow line;
    if (m_choice.chosen == row.id)
      line.emphasis = ReportRow::Emphasis::Highlighted;
    if (!m_choice.team)
      line.cells.push_back(textCell(m_catalogue.teams()[row.team].key));
    line.cells.push_back(textCell(row.number));
    line.cells.push_back(textCell(seasonCell(row, kNameColumn, view, m_texts) + (isMarked ? " *" : "")));
    for (const int column : columnsOf(ofShots))
      line.cells.push_back(cellAt(row, column, view));
    return line;
  }

  // A small table for each statistic, side by side.
  void addLeaders(SeasonView view) {
    const Leaders leaders(m_statistics.players(), view, m_texts, m_choice.minimum, m_choice.ownRating);
    for (const StatisticLeaders& statistic : leaders.statistics()) {
      // Points stay where nobody leads at all, so that every file has its table.
      if (statistic.leaders.empty() && statistic.column != seasonColumn("PTS").index)
        continue;
      ReportTable table;
      const std::string header = columnOf(statistic.column).header;
      table.title = wordsOf(statistic.column);
      table.standsBeside = !m_report.blocks.empty();
      table.isInGrid = true;
      table.columns = {{"#", "Rank"}, repeated(text(m_texts, Text::PlayerName), "Name"), {header, "Value"}};
      const bool hasForty =
          view == SeasonView::PerMinute && !isPercent(statistic.column); // beside per minute
      if (hasForty)
        table.columns.push_back({text(m_texts, Text::PerForty), "Per40"});
      if (!m_choice.team)
        table.columns.insert(table.columns.begin() + 2, {text(m_texts, Text::Team), "Team", {}, true});
      for (const Leader& leader : statistic.leaders) {
        ReportRow& row = table.rows.emplace_back();
        if (m_choice.chosen == leader.row->id)
          row.emphasis = ReportRow::Emphasis::Highlighted;
        row.cells = {numberCell(leader.rank), textCell(leader.row->number + ' ' + leader.row->name)};
        if (!m_choice.team)
          row.cells.push_back(textCell(m_catalogue.teams()[leader.row->team].key));
        row.cells.push_back(cellAt(*leader.row, statistic.column, view));
        if (hasForty)
          row.cells.push_back(cellAt(*leader.row, statistic.column, SeasonView::PerForty));
      }
      m_report.blocks.push_back(std::move(table));
    }
    addNote(minimumWords(m_choice.minimum, view, m_texts));
  }

  void addPerformance(SeasonTable which) {
    const bool isPlayer = which == SeasonTable::Players;
    m_report.title = text(m_texts, isPlayer ? Text::PlayerPerformance : Text::LinePerformance);
    const auto rows = isPlayer ? m_statistics.players() : m_statistics.lines();
    const auto row =
        std::ranges::find_if(rows, [&](const SeasonRow& each) { return m_choice.chosen == each.id; });
    if (row == rows.end())
      return;
    const std::string name = isPlayer ? row->number + ' ' + row->name : row->players;
    m_whose = m_catalogue.teams()[row->team].key + ' ' + name;
    m_report.subject = m_whose + ", " + selection();
    m_report.blocks.push_back(ReportParagraph{
        ReportParagraph::Style::Heading, name + " – " + m_catalogue.teams()[row->team].key + ", " +
                                             countWords(static_cast<std::size_t>(row->games),
                                                        Text::OneGamePlayed, Text::GamesPlayed, m_texts)});
    const std::vector<GameResult> results =
        isPlayer ? m_statistics.resultsOfPlayer(row->id) : m_statistics.resultsOfLine(row->id);
    addSums(*row, isPlayer);
    addRecords(results, isPlayer);
    if (isPlayer)
      addShots(shotsOfPlayer(m_catalogue, results, row->id));
    addPoints(results);
    addResults(results);
  }

  void addSheet() {
    const auto players = m_statistics.players();
    const auto row =
        std::ranges::find_if(players, [&](const SeasonRow& each) { return m_choice.chosen == each.id; });
    if (row == players.end())
      return;
    takePage(playerSheet(m_statistics, row->id, m_choice.ownRating, m_texts));
    addPoints(m_statistics.resultsOfPlayer(row->id));
    m_whose = m_catalogue.teams()[row->team].key + ' ' + row->number + ' ' + row->name;
    m_report.subject = m_whose + ", " + selection();
  }

  void addScout() {
    takePage(scoutSheet(m_statistics, m_choice.team, m_choice.reader, m_texts));
    if (!m_choice.team)
      return;
    std::vector<std::size_t> games = gamesOfTeam(m_statistics, *m_choice.team);
    std::ranges::reverse(games);
    m_report.subject = m_whose + ", " + selection(games);
  }

  void takePage(Report sheet) {
    m_report.isOnePage = sheet.isOnePage;
    m_report.blocks = std::move(sheet.blocks);
  }

  void addSums(const SeasonRow& row, bool isPlayer) {
    for (const bool ofShots : {true, false}) {
      ReportTable table = tableOf({repeated("", "View")}, columnsOf(ofShots));
      table.standsBeside = !ofShots;
      table.title = text(m_texts, isPlayer ? (ofShots ? Text::PlayerShots : Text::PlayerOther)
                                           : (ofShots ? Text::LineShots : Text::LineOther));
      for (const SeasonView view : kSeasonViews) {
        ReportRow& line = table.rows.emplace_back();
        line.cells.push_back(textCell(titleOf(view)));
        for (const int column : columnsOf(ofShots))
          line.cells.push_back(cellAt(row, column, view));
      }
      m_report.blocks.push_back(std::move(table));
    }
  }

  void addRecords(const std::vector<GameResult>& results, bool isPlayer) {
    Records records;
    for (const GameResult& result : results)
      records.add(m_catalogue, result, m_texts);
    ReportTable table;
    table.title = text(m_texts, isPlayer ? Text::PersonalRecords : Text::LineRecords);
    table.columns = {repeated("", "Code"),
                     {text(m_texts, Text::Statistic), "Statistic", {}, true},
                     {text(m_texts, Text::Value), "Value"},
                     {text(m_texts, Text::WhereCriterion), "Where", {}, true}};
    for (const Record& record : records.records()) {
      ReportCell value = textCell(record.text());
      if (record.value != 0) {
        value.kind = kindOfCell(seasonColumn(record.column).statistic->kind);
        value.value = record.value;
      }
      table.rows.push_back({{textCell(std::string(record.what)), textCell(wordsOf(record.column)),
                             std::move(value), textCell(record.where)}});
    }
    m_report.blocks.push_back(std::move(table));
  }
  // A column in words, short enough for a title.
  std::string wordsOf(int column) const {
    if (column == kSeasonOwnColumn)
      return m_texts.withPlaceholder(Text::OwnRatingBoth, m_choice.ownRating.head);
    const Statistic& statistic = *seasonColumn(column).statistic;
    if (statistic.group == nullptr || statistic.part == ShotPart::Points)
      return capitalised(statisticTitle(statistic, m_statistics.labels(), m_settings, m_texts));
    return m_texts.withPlaceholder(statistic.part == ShotPart::Made        ? Text::MadeOf
                                   : statistic.part == ShotPart::Attempted ? Text::AttemptsOf
                                                                           : Text::PercentageOf,
                                   groupTitle(*statistic.group, m_texts));
  }

  // Beside the records, where there is room.
  void addShots(const ShotSums& shots) {
    ShotDrawing drawing{{}, zoneWords(shots)};
    if (drawing.zones.empty())
      return;
    const ShotSums average = shotsOfGames(m_catalogue, m_statistics.games());
    for (const ZoneWords& words : drawing.zones) {
      const auto zone = static_cast<std::size_t>(words.zone);
      drawing.differences.push_back(differenceInPoints(shots.zones[zone], average.zones[zone]));
    }
    m_report.blocks.push_back(ReportPicture{text(m_texts, Text::SeasonShotChart), std::move(drawing),
                                            text(m_texts, Text::DifferenceLegend), true});
  }

  // Points game by game, with their average across.
  void addPoints(const std::vector<GameResult>& results) {
    constexpr std::size_t kMostDates = 10;
    if (results.size() < 2)
      return;
    const GameSeries series = seriesOfStatistic(results, seasonColumn("PTS").index);
    LineDrawing drawing;
    drawing.lines.resize(2);
    const std::size_t step = (results.size() + kMostDates - 1) / kMostDates;
    for (std::size_t i = 0; i < results.size(); ++i) {
      const auto at = static_cast<double>(i);
      drawing.lines[0].points.push_back({at + 0.5, series.points[i].value.value_or(0)});
      if (i % step == 0)
        drawing.ticks.push_back({at, m_catalogue.games()[results[i].game].date});
    }
    const auto end = static_cast<double>(results.size());
    drawing.ticks.push_back({end, {}});
    drawing.lines[0].name = text(m_texts, Text::Points);
    drawing.lines[1].points = {{0, *series.average}, {end, *series.average}};
    int sum = 0;
    for (const GameResult& result : results)
      sum += result.numbers.points();
    drawing.lines[1].name = m_texts.withPlaceholder(
        Text::Average, Module1::quotientText(sum, static_cast<std::int64_t>(results.size()), 1));
    m_report.blocks.push_back(ReportPicture{
        text(m_texts, Text::ResultsByGame) + " – " + text(m_texts, Text::Points), std::move(drawing)});
  }

  void addResults(const std::vector<GameResult>& results) {
    std::vector<int> columns;
    std::vector<ReportColumn> begin;
    for (int column = 1; column <= kResultOpponentColumn; ++column)
      begin.push_back(repeated(resultHeader(column, m_texts), ""));
    constexpr const char* kNames[] = {"Date", "Where", "Result", "Opponent"};
    for (std::size_t i = 0; i < begin.size(); ++i)
      begin[i].name = kNames[i];
    for (int column = kResultOpponentColumn + 1; column <= resultColumnCount(); ++column)
      columns.push_back(seasonColumnOfResult(column));
    columns = withOwnRating(std::move(columns));
    ReportTable table = tableOf(std::move(begin), columns);
    table.title = text(m_texts, Text::ResultsByGame);
    for (const GameResult& result : results) {
      const SeasonRow row = rowOfResult(result);
      ReportRow& line = table.rows.emplace_back();
      for (int column = 1; column <= kResultOpponentColumn; ++column)
        line.cells.push_back(textCell(resultCell(m_catalogue, result, column, m_texts)));
      for (const int column : columns)
        line.cells.push_back(cellAt(row, column, SeasonView::Totals));
    }
    const ReportTable& placed = std::get<ReportTable>(m_report.blocks.emplace_back(std::move(table)));
    addNotes(m_report, ReportTable(placed), m_texts);
  }

  const SeasonStatistics& m_statistics;
  const GameCatalogue& m_catalogue;
  const SeasonReportChoice& m_choice;
  const Settings& m_settings;
  const Texts& m_texts;
  std::string m_whose; // team, player or line
  Report m_report;
};

} // namespace

std::span<const SeasonReportName> seasonReports() {
  return kReports;
}

Report seasonReport(SeasonReport which, const SeasonStatistics& statistics, const SeasonReportChoice& choice,
                    const Settings& settings, const Texts& texts) {
  return SeasonReportMaker(statistics, choice, settings, texts).make(which);
}

} // namespace hooptab
