#include "scorecard/LeagueSheet.h"

#include <algorithm>
#include <utility>

namespace hooptab {

namespace {

constexpr ShotKinds kTwo =
    shotKinds({EventCode::GFG, EventCode::GLG, EventCode::GLD, EventCode::GPB, EventCode::GDK});
constexpr ShotKinds kThree = shotKinds({EventCode::GF3});
constexpr ShotKinds kFree = shotKinds({EventCode::GFT});
constexpr ShotKinds kField = kTwo | kThree;

using enum ShotPart;

template <ShotKinds kinds, ShotPart part>
constexpr LeagueColumn shots(std::string_view name, Text words) {
  return {name,
          Text::None,
          words,
          part == Percent ? ValueKind::Percent : ValueKind::Count,
          [](const BoxRow& row) -> StatisticValue {
            if constexpr (part == Percent)
              return {row.numbers.made(kinds), row.numbers.attempted(kinds)};
            return {part == Made ? row.numbers.made(kinds) : row.numbers.attempted(kinds)};
          },
          kinds,
          part};
}

template <Counter counter>
constexpr LeagueColumn counted(std::string_view name, Text words) {
  return {name, Text::None, words, ValueKind::Count,
          [](const BoxRow& row) { return StatisticValue{row.numbers.counters[counter]}; }};
}

// clang-format off
constexpr LeagueColumn kColumns[] = {
    {"Time", Text::Time, Text::TimeToolTip, ValueKind::Time,
     [](const BoxRow& row) { return StatisticValue{row.numbers.seconds}; }},
    shots<kField, Made>("FGM", Text::FieldGoals),
    shots<kField, Attempted>("FGA", Text::FieldGoals),
    shots<kField, Percent>("FG%", Text::FieldGoals),
    shots<kTwo, Made>("2PM", Text::TwoPointShots),
    shots<kTwo, Attempted>("2PA", Text::TwoPointShots),
    shots<kTwo, Percent>("2P%", Text::TwoPointShots),
    shots<kThree, Made>("3PM", Text::ThreePoints),
    shots<kThree, Attempted>("3PA", Text::ThreePoints),
    shots<kThree, Percent>("3P%", Text::ThreePoints),
    shots<kFree, Made>("FTM", Text::FreeThrow),
    shots<kFree, Attempted>("FTA", Text::FreeThrow),
    shots<kFree, Percent>("FT%", Text::FreeThrow),
    counted<Counter::OR>("OR", Text::OffensiveRebound),
    counted<Counter::DR>("DR", Text::DefensiveRebound),
    {"TR", Text::None, Text::TotalRebounds, ValueKind::Count,
     [](const BoxRow& row) { return StatisticValue{row.numbers.rebounds()}; }},
    counted<Counter::Ast>("Ast", Text::Assist),
    counted<Counter::TO>("TO", Text::Turnover),
    counted<Counter::ST>("ST", Text::Steal),
    counted<Counter::BS>("BS", Text::BlockedShot),
    {"BA", Text::BlocksAgainstShort, Text::BlocksAgainst, ValueKind::Count,
     [](const BoxRow& row) { return StatisticValue{row.blocksAgainst}; }},
    {"PF", Text::None, Text::AllFouls, ValueKind::Count,
     [](const BoxRow& row) {
       return StatisticValue{row.numbers.counters[Counter::PF] + row.numbers.counters[Counter::TF]};
     }},
    {"FD", Text::FoulsDrawnShort, Text::FoulsDrawn, ValueKind::Count,
     [](const BoxRow& row) { return StatisticValue{row.foulsDrawn}; }},
    {"PTS", Text::None, Text::PointsScored, ValueKind::Count,
     [](const BoxRow& row) { return StatisticValue{row.numbers.points()}; }},
};
// clang-format on

} // namespace

std::span<const LeagueColumn> leagueColumns() {
  return kColumns;
}

const LeagueColumn& leagueColumn(std::string_view name) {
  return *std::ranges::find(kColumns, name, &LeagueColumn::name);
}

std::string leagueHeader(const LeagueColumn& column, const Texts& texts) {
  return std::string(column.header == Text::None ? column.name : texts.text(column.header));
}

std::vector<BoxRow> leagueRows(const CountedGame& counted, Side team, const Texts& texts) {
  const TeamRow& own = counted.state.teamRows[team];
  Counters counters;
  counters[Counter::OR] = own.offensiveRebounds;
  counters[Counter::DR] = own.defensiveRebounds;
  counters[Counter::TO] = own.turnovers;
  counters[Counter::TF] = own.benchTechnicals;
  BoxRow row{BoxRowKind::Team, -1, {}, std::string(texts.text(Text::TeamAndCoach)), {}, {}};
  row.numbers.counters += counters;
  std::vector<BoxRow> rows = boxRows(counted, team, BoxView::Players, texts);
  rows.back().numbers.counters += counters;
  rows.insert(rows.end() - 1, std::move(row));
  return rows;
}

std::string leagueCell(const BoxRow& row, const LeagueColumn& column) {
  if (row.kind == BoxRowKind::Team && column.kind == ValueKind::Time)
    return {};
  return valueText(column.value(row), column.kind);
}

} // namespace hooptab
