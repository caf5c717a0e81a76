#include "report/LeagueBox.h"

#include "report/ReportWords.h"
#include "scorecard/BoxScore.h"

#include <algorithm>
#include <utility>

namespace hooptab {

namespace {

constexpr ShotKinds kTwo =
    shotKinds({EventCode::GFG, EventCode::GLG, EventCode::GLD, EventCode::GPB, EventCode::GDK});
constexpr ShotKinds kThree = shotKinds({EventCode::GF3});
constexpr ShotKinds kFree = shotKinds({EventCode::GFT});

struct LeagueRow {
  BoxNumbers numbers;
  int fouls = 0;
  int drawn = 0;
  int blocksAgainst = 0;

  LeagueRow& operator+=(const LeagueRow& other) {
    for (std::size_t i = 0; i < numbers.counters.counts.size(); ++i)
      numbers.counters.counts[i] += other.numbers.counters.counts[i];
    numbers.seconds += other.numbers.seconds;
    fouls += other.fouls;
    drawn += other.drawn;
    blocksAgainst += other.blocksAgainst;
    return *this;
  }
};

template <Counter counter>
int counted(const LeagueRow& row) {
  return row.numbers.counters[counter];
}

struct LeagueColumn {
  std::string_view name; // for files, and the header where there is no other
  Text header;
  Text words;
  int (*value)(const LeagueRow& row);
};
constexpr LeagueColumn kColumns[] = {
    {"PTS", Text::None, Text::PointsScored, [](const LeagueRow& row) { return row.numbers.points(); }},
    {"2PM", Text::None, Text::TwoPointShots, [](const LeagueRow& row) { return row.numbers.made(kTwo); }},
    {"2PA", Text::None, Text::TwoPointShots,
     [](const LeagueRow& row) { return row.numbers.attempted(kTwo); }},
    {"3PM", Text::None, Text::ThreePoints, [](const LeagueRow& row) { return row.numbers.made(kThree); }},
    {"3PA", Text::None, Text::ThreePoints,
     [](const LeagueRow& row) { return row.numbers.attempted(kThree); }},
    {"FTM", Text::None, Text::FreeThrow, [](const LeagueRow& row) { return row.numbers.made(kFree); }},
    {"FTA", Text::None, Text::FreeThrow, [](const LeagueRow& row) { return row.numbers.attempted(kFree); }},
    {"OR", Text::None, Text::OffensiveRebound, counted<Counter::OR>},
    {"DR", Text::None, Text::DefensiveRebound, counted<Counter::DR>},
    {"TR", Text::None, Text::TotalRebounds, [](const LeagueRow& row) { return row.numbers.rebounds(); }},
    {"Ast", Text::None, Text::Assist, counted<Counter::Ast>},
    {"TO", Text::None, Text::Turnover, counted<Counter::TO>},
    {"ST", Text::None, Text::Steal, counted<Counter::ST>},
    {"BS", Text::None, Text::BlockedShot, counted<Counter::BS>},
    {"BA", Text::BlocksAgainstShort, Text::BlocksAgainst,
     [](const LeagueRow& row) { return row.blocksAgainst; }},
    {"PF", Text::None, Text::AllFouls, [](const LeagueRow& row) { return row.fouls; }},
    {"FD", Text::FoulsDrawnShort, Text::FoulsDrawn, [](const LeagueRow& row) { return row.drawn; }},
};

LeagueRow rowOf(const BoxRow& row, const PlayerExtras& extras) {
  return {row.numbers, row.numbers.counters[Counter::PF] + row.numbers.counters[Counter::TF],
          extras.foulsDrawn, extras.blocksAgainst};
}

LeagueRow rowOf(const TeamRow& row) {
  LeagueRow own;
  Counters counters;
  counters[Counter::OR] = row.offensiveRebounds;
  counters[Counter::DR] = row.defensiveRebounds;
  counters[Counter::TO] = row.turnovers;
  own.numbers.counters += counters;
  own.fouls = row.benchTechnicals;
  return own;
}

ReportRow cellsOf(const std::string& number, const std::string& name, const LeagueRow& row, bool hasTime) {
  ReportRow cells;
  cells.cells = {textCell(number), textCell(name)};
  cells.cells.push_back(hasTime ? ReportCell{valueText({row.numbers.seconds}, ValueKind::Time),
                                             ReportCell::Kind::Time, double(row.numbers.seconds)}
                                : textCell({}));
  for (const LeagueColumn& column : kColumns)
    cells.cells.push_back(numberCell(column.value(row)));
  return cells;
}

} // namespace

ReportTable leagueTable(const CountedGame& counted, int team, const Texts& texts) {
  const auto& [game, state] = counted;
  const auto side = static_cast<std::size_t>(team);
  ReportTable table;
  table.title = game.details.abbreviation[team] + " – " + game.details.name[team];
  table.columns = {{"No", "No", std::string(texts.text(Text::JerseyNumber)), true, true},
                   {std::string(texts.text(Text::NewName)), "Name", {}, true, true},
                   {std::string(texts.text(Text::Time)), "Time"}};
  for (const LeagueColumn& column : kColumns)
    table.columns.push_back(
        {std::string(column.header == Text::None ? column.name : texts.text(column.header)),
         std::string(column.name), capitalised(std::string(texts.text(column.words)))});
  LeagueRow total;
  const auto add = [&](const std::string& number, const std::string& name, const LeagueRow& row,
                       bool hasTime) {
    table.rows.push_back(cellsOf(number, name, row, hasTime));
    total += row;
  };
  for (const BoxRow& row : boxRows(counted, team, BoxView::Players, texts)) {
    if (row.kind != BoxRowKind::Total)
      add(row.number, row.name, rowOf(row, state.extras[side][static_cast<std::size_t>(row.entry)]), true);
  }
  add({}, std::string(texts.text(Text::TeamAndCoach)), rowOf(state.teamRows[side]), false);
  table.rows.push_back(cellsOf({}, std::string(texts.text(Text::Total)), total, true));
  table.rows.back().emphasis = ReportRow::Emphasis::Total;
  return table;
}

} // namespace hooptab
