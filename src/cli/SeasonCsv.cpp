#include "cli/CsvField.h"
#include "cli/SeasonReports.h"
#include "season/SeasonColumns.h"

namespace hooptab {

namespace {

void addRows(std::string& csv, const SeasonStatistics& statistics, std::span<const SeasonRow> rows,
             const std::string& table, int columns, const Texts& texts) {
  constexpr std::string_view kViewNames[] = {"total", "perGame", "perMinute"};
  for (const SeasonView view : kSeasonViews) {
    for (const SeasonRow& row : rows) {
      csv.append(table).append(",").append(kViewNames[static_cast<std::size_t>(view)]).append(",");
      csv += csvField(statistics.catalogue().teams()[row.team].key);
      for (int column = 1; column <= kSeasonColumnCount; ++column)
        csv += ',' + (column <= columns ? csvField(seasonCell(row, column, view, texts)) : std::string());
      csv += "\r\n";
    }
  }
}

} // namespace

std::string seasonCsv(const SeasonStatistics& statistics, const Texts& texts) {
  std::string csv = "table,view,team";
  for (const SeasonColumn& column : seasonColumns())
    csv += ',' + csvField(column.name);
  csv += "\r\n";
  addRows(csv, statistics, statistics.players(), "players", kSeasonColumnCount, texts);
  addRows(csv, statistics, statistics.lines(), "lines", kSeasonLineColumnCount, texts);
  return csv;
}

} // namespace hooptab
