#include "report/LeagueBox.h"

#include "report/ReportWords.h"
#include "scorecard/LeagueSheet.h"

#include <utility>

namespace hooptab {

namespace {

// Without percentages, which a league counts itself.
constexpr std::string_view kReported[] = {"Time", "PTS", "2PM", "2PA", "3PM", "3PA", "FTM", "FTA", "OR",
                                          "DR",   "TR",  "Ast", "TO",  "ST",  "BS",  "BA",  "PF",  "FD"};

ReportCell cellOf(const BoxRow& row, const LeagueColumn& column) {
  std::string text = leagueCell(row, column);
  if (text.empty())
    return textCell({});
  return {std::move(text), kindOfCell(column.kind), sortValue(column.value(row))};
}

constexpr const char* kCaptainMark = " (C)"; // as the sport's sheets have it, in both languages

} // namespace

ReportTable leagueTable(const CountedGame& counted, Side team, const Texts& texts) {
  const GameDetails& details = counted.game.details;
  ReportTable table;
  table.title = details.abbreviation[team] + " – " + details.name[team];
  table.columns = {{"No", "No", std::string(texts.text(Text::JerseyNumber)), true, true},
                   {std::string(texts.text(Text::NewName)), "Name", {}, true, true}};
  for (const std::string_view name : kReported) {
    const LeagueColumn& column = leagueColumn(name);
    table.columns.push_back({leagueHeader(column, texts), std::string(name),
                             column.kind == ValueKind::Time
                                 ? std::string() // its header says it all
                                 : capitalised(std::string(texts.text(column.words)))});
  }
  const int captain = counted.game.roster[team].entryOf(details.captain[team]);
  for (const BoxRow& row : leagueRows(counted, team, texts)) {
    ReportRow& line = table.rows.emplace_back();
    const bool isCaptain = captain > 0 && row.kind == BoxRowKind::Player && row.entry == captain;
    line.cells = {textCell(row.number), textCell(isCaptain ? row.name + kCaptainMark : row.name)};
    for (const std::string_view name : kReported)
      line.cells.push_back(cellOf(row, leagueColumn(name)));
    if (row.kind == BoxRowKind::Total)
      line.emphasis = ReportRow::Emphasis::Total;
  }
  return table;
}

} // namespace hooptab
