#include "cli/SeasonReports.h"
#include "feed/TextTable.h"
#include "insight/Rates.h"
#include "report/ReportWords.h"
#include "season/GameColumns.h"
#include "season/SeasonWords.h"
#include "storage/Utf8.h"

#include <algorithm>

namespace hooptab {

namespace {

using Align = TextTable::Align;
using Row = std::vector<std::string>;

constexpr Text kViewTitles[] = {Text::PlayerTitle, Text::AveragePerGame, Text::AveragePerMinute,
                                Text::PerForty}; // by SeasonView
constexpr std::string_view kMark = " *";         // of averages that say little

// The columns that a terminal has room for.
constexpr std::string_view kColumns[] = {"No", "Name", "Pos", "G",   "Time", "PTS",   "TGM", "TGA",
                                         "%",  "F2M",  "F3M", "FTM", "OR",   "DR",    "TR",  "Ast",
                                         "BS", "ST",   "TO",  "PF",  "TF",   "rating"};

class SeasonText {
 public:
  SeasonText(const SeasonStatistics& statistics, std::optional<SeasonId> team, const Qualification& minimum,
             const Texts& texts)
      : m_statistics(statistics), m_catalogue(statistics.catalogue()), m_team(team), m_minimum(minimum),
        m_texts(texts) {}

  std::string text() const {
    std::string text =
        labelled(Text::GamesTitle, std::to_string(m_statistics.games().size()), m_texts) + "\n" + gameTable();
    if (!m_statistics.teams().empty())
      text += "\n" + word(Text::TeamStatistics) + "\n" + teamTable();
    if (!m_statistics.players().empty()) {
      for (const SeasonView view : kSeasonViews)
        text += "\n" + word(kViewTitles[static_cast<std::size_t>(view)]) + "\n" +
                table(SeasonTable::Players, view);
    }
    if (!m_statistics.lines().empty())
      text += "\n" + word(Text::LineStatistics) + "\n" + table(SeasonTable::Lines, SeasonView::Totals);
    return text + notRead();
  }

 private:
  std::string word(Text which) const { return std::string(m_texts.text(which)); }

  std::string gameTable() const {
    constexpr int kShown[] = {1, 2, 3, 4, 5, 6, 7};
    TextTable table;
    for (const int index : kShown) {
      const GameColumn& column = gameColumns()[static_cast<std::size_t>(index - 1)];
      const bool isNumber = !gameColumnIsText(index) && index != kShown[0];
      table.addColumn(column.headerText != Text::None ? word(column.headerText) : std::string(column.header),
                      isNumber ? Align::Right : Align::Left);
    }
    table.addColumn({}, Align::Left);
    for (const std::size_t place : m_statistics.games()) {
      const ListedGame& game = m_catalogue.games()[place];
      Row cells;
      for (const int index : kShown)
        cells.push_back(printable(gameCell(m_catalogue, game, index, m_team, m_texts)));
      cells.push_back(printable(copyWords(m_catalogue, game, m_texts)));
      table.addRow(std::move(cells));
    }
    return table.text();
  }

  std::string teamTable() const {
    TextTable table;
    table.addColumn(word(Text::Team), Align::Left);
    for (const Text text : {Text::Games, Text::WinShort, Text::LossShort, Text::TieShort})
      table.addColumn(word(text), Align::Right);
    table.addColumn("PTS", Align::Right);
    table.addColumn(word(Text::PossessionsWord), Align::Right);
    for (const Text text : {Text::StandingsOffence, Text::StandingsDefence, Text::PaceWord})
      table.addColumn(word(text), Align::Right);
    const auto rate = [](std::string_view name, const SeasonTeamRow& row) {
      return rateText(rateNamed(name), rateNamed(name).value(RateBasis::ofAll(kOwnSide, row.counted)));
    };
    for (const SeasonTeamRow& row : m_statistics.teams())
      table.addRow({printable(m_catalogue.teams()[row.team].key), std::to_string(row.games),
                    std::to_string(row.wins), std::to_string(row.losses), std::to_string(row.ties),
                    std::to_string(row.pointsFor) + "-" + std::to_string(row.pointsAgainst),
                    std::to_string(row.counted.possessions[kOwnSide]), rate("offRating", row),
                    rate("defRating", row), rate("pace", row)});
    return table.text();
  }

  std::string table(SeasonTable kind, SeasonView view) const {
    std::vector<int> columns;
    for (const std::string_view name : kColumns) {
      const int column = seasonColumn(name).index;
      if (std::ranges::find(columnsOfTable(kind), column) != columnsOfTable(kind).end())
        columns.push_back(column);
    }
    TextTable table;
    table.addColumn(word(Text::Team), Align::Left);
    for (const int column : columns)
      table.addColumn(seasonHeader(column, kind, m_texts),
                      seasonColumnIsText(column) ? Align::Left : Align::Right);
    const bool hasPlusMinus = view == SeasonView::Totals;
    if (hasPlusMinus)
      table.addColumn("+/-", Align::Right);
    const auto rows = kind == SeasonTable::Players ? m_statistics.players() : m_statistics.lines();
    const auto isMarked = [&](const SeasonRow& row) { return m_minimum.isUnder(row, kind, view); };
    for (const SeasonRow& row : rows) {
      Row cells = {printable(m_catalogue.teams()[row.team].key)};
      for (const int column : columns) {
        cells.push_back(printable(seasonCell(row, column, view, m_texts)));
        if (column == kNameColumn && isMarked(row))
          cells.back() += kMark;
      }
      if (hasPlusMinus)
        cells.push_back(row.plusMinus() ? std::to_string(*row.plusMinus()) : "-");
      table.addRow(std::move(cells));
    }
    return table.text() +
           (std::ranges::any_of(rows, isMarked) ? markWords(m_minimum, kind, view, m_texts) + "\n" : "");
  }

  std::string notRead() const {
    const std::span<const SkippedFile> files = m_catalogue.skipped();
    if (files.empty())
      return {};
    std::string text = "\n" + m_texts.withPlaceholder(Text::NotRead, std::to_string(files.size())) + "\n";
    for (const SkippedFile& file : files)
      text += "  " + printable(file.path) + ": " + word(skipReasonText(file.reason)) + "\n";
    return text;
  }

  const SeasonStatistics& m_statistics;
  const GameCatalogue& m_catalogue;
  std::optional<SeasonId> m_team;
  Qualification m_minimum;
  const Texts& m_texts;
};

} // namespace

std::string seasonText(const SeasonStatistics& statistics, std::optional<SeasonId> team,
                       const Qualification& minimum, const Texts& texts) {
  return SeasonText(statistics, team, minimum, texts).text();
}

} // namespace hooptab
