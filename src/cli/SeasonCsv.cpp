#include "cli/SeasonReports.h"
#include "season/SeasonColumns.h"
#include "storage/DelimitedText.h"

namespace hooptab {

namespace {

void addRows(std::string& csv, const SeasonStatistics& statistics, std::span<const SeasonRow> rows,
             const std::string& table, int columns, const Texts& texts) {
  constexpr const char* kViewNames[] = {"total", "perGame", "perMinute"};
  for (const SeasonView view : kSeasonViews) {
    for (const SeasonRow& row : rows) {
      std::vector<std::string> cells = {table, kViewNames[static_cast<std::size_t>(view)],
                                        statistics.catalogue().teams()[row.team].key};
      for (int column = 1; column <= kSeasonColumnCount; ++column)
        cells.push_back(column <= columns ? seasonCell(row, column, view, texts) : std::string());
      csv += csvRow(cells);
    }
  }
}

} // namespace

std::string seasonCsv(const SeasonStatistics& statistics, const Texts& texts) {
  std::vector<std::string> header = {"table", "view", "team"};
  for (const SeasonColumn& column : seasonColumns())
    header.emplace_back(column.name);
  std::string csv = csvRow(header);
  addRows(csv, statistics, statistics.players(), "players", kSeasonColumnCount, texts);
  addRows(csv, statistics, statistics.lines(), "lines", kSeasonLineColumnCount, texts);
  return csv;
}

} // namespace hooptab
