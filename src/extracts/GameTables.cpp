#include "extracts/GameTables.h"

#include "insight/ShotPartners.h"
#include "extracts/TableColumns.h"
#include "storage/DelimitedText.h"

#include <algorithm>
#include <map>

namespace hooptab {

namespace {

using namespace tables;
using Partners = std::map<std::size_t, std::size_t>;
using Rows = std::vector<std::vector<std::string>>;

template <class Row>
std::vector<std::string> namesOf(std::span<const Column<Row>> columns) {
  std::vector<std::string> names;
  for (const Column<Row>& column : columns)
    names.emplace_back(column.name);
  return names;
}

template <class Row>
void add(Rows& rows, std::span<const Column<Row>> columns, const Row& row) {
  std::vector<std::string>& cells = rows.emplace_back();
  cells.reserve(columns.size());
  for (const Column<Row>& column : columns)
    cells.push_back(column.cell(row));
}

// --- Players

std::map<std::string, int> plusMinusOf(const GameWalk& walk, Side team) {
  std::map<std::string, int> margins;
  for (const Stint& stint : walk.stints) {
    for (const std::string& jersey : stint.onCourt[team])
      margins[jersey] += stint.points[team] - stint.points[otherSide(team)];
  }
  return margins;
}

// Who was on court when the clock ran first: a line-up that was corrected before is none.
std::vector<std::string> startersOf(const GameWalk& walk, Side team) {
  const auto first = std::ranges::find_if(walk.stints, [](const Stint& stint) { return stint.seconds > 0; });
  if (first != walk.stints.end())
    return first->onCourt[team];
  return walk.stints.empty() ? std::vector<std::string>() : walk.stints.back().onCourt[team];
}

// Rows of the players, of others where they have any count, and of what the team did itself.
void addPlayers(Rows& rows, const GameRow& game, Side team) {
  const GameState& state = game.source.counted.state;
  const std::map<std::string, int> margins = plusMinusOf(game.walk, team);
  const std::vector<std::string> starters = startersOf(game.walk, team);
  const auto numbersOf = [&](std::size_t entry) {
    BoxNumbers numbers;
    numbers.counters += state.players[team][entry].counters;
    numbers.seconds = std::max(state.players[team][entry].seconds, 0);
    return numbers;
  };
  std::size_t entry = 0;
  for (const RosterPlayer& player : game.game().roster[team].players()) {
    const bool isCounted = ++entry < GameState::kPlayerEntries;
    const auto margin = margins.find(player.jersey);
    add(rows, playerColumns(),
        PlayerRow{game, PlayerRow::Kind::Player, team, &player, isCounted,
                  isCounted ? numbersOf(entry) : BoxNumbers(),
                  isCounted ? state.extras[team][entry] : PlayerExtras(),
                  std::ranges::find(starters, player.jersey) != starters.end(),
                  isCounted && (static_cast<unsigned>(state.wereOnCourt[team]) >> entry & 1U) != 0,
                  margin == margins.end() ? 0 : margin->second});
  }
  if (state.players[team][0].counters.hasAny() || state.extras[team][0] != PlayerExtras())
    add(rows, playerColumns(),
        PlayerRow{game, PlayerRow::Kind::Others, team, nullptr, true, numbersOf(0), state.extras[team][0],
                  false, false, 0});
  if (const TeamRow& own = state.teamRows[team]; own != TeamRow()) {
    Counters counters;
    counters[Counter::OR] = own.offensiveRebounds;
    counters[Counter::DR] = own.defensiveRebounds;
    counters[Counter::TO] = own.turnovers;
    counters[Counter::TF] = own.benchTechnicals;
    BoxNumbers numbers;
    numbers.counters += counters;
    add(rows, playerColumns(),
        PlayerRow{game, PlayerRow::Kind::Team, team, nullptr, true, numbers, {}, false, false, 0});
  }
}

// --- Events

void addEvents(Rows& events, Rows& shots, const GameRow& game) {
  events.reserve(game.walk.events.size());
  for (const WalkedEvent& walked : game.walk.events) {
    const EventRow row{game, walked, game.game().events[walked.place]};
    add(events, eventColumns(), row);
    if (!row.event.isShot() || row.event.code == EventCode::GFT)
      continue;
    ShotRow shot{row, std::nullopt, std::nullopt};
    if (game.isLive()) // totals have no order
      shot.assist = assistOf(game.game().events, walked.place);
    if (const auto block = game.blocks.find(walked.place); block != game.blocks.end())
      shot.block = block->second;
    add(shots, shotColumns(), shot);
  }
}

} // namespace

std::string_view tableFileName(GameTable table) {
  constexpr std::array<std::string_view, kGameTableCount> kNames = {"games.csv", "players.csv", "events.csv",
                                                                    "stints.csv", "shots.csv"};
  return kNames[static_cast<std::size_t>(table)];
}

std::vector<std::string> tableColumns(GameTable table) {
  switch (table) {
  case GameTable::Games: return namesOf(gameColumns());
  case GameTable::Players: return namesOf(playerColumns());
  case GameTable::Events: return namesOf(eventColumns());
  case GameTable::Stints: return namesOf(stintColumns());
  default: return namesOf(shotColumns());
  }
}

std::array<Rows, kGameTableCount> tableRows(const ExtractSource& source) {
  const GameWalk walk = walkGame(source.game());
  const GameRow game{source, walk, gameKey(source.game()), ElapsedTime(source.game()),
                     source.game().details.inputType == 0 ? blockedShots(source.game().events) : Partners()};
  std::array<Rows, kGameTableCount> rows;
  auto& [games, players, events, stints, shots] = rows;
  add(games, gameColumns(), game);
  for (const Side team : kSides)
    addPlayers(players, game, team);
  addEvents(events, shots, game);
  for (const Stint& stint : walk.stints)
    add(stints, stintColumns(), StintRow{game, stint});
  return rows;
}

TableWriter::TableWriter(const Sinks& sinks) : m_sinks(sinks) {
  for (const GameTable table : kGameTables)
    *m_sinks[static_cast<std::size_t>(table)] << csvRow(tableColumns(table));
}

void TableWriter::append(const ExtractSource& source) {
  const auto tables = tableRows(source);
  for (std::size_t table = 0; table < kGameTableCount; ++table) {
    for (const std::vector<std::string>& row : tables[table])
      *m_sinks[table] << csvRow(row);
  }
}

bool TableWriter::isGood() const {
  return std::ranges::all_of(m_sinks, [](const std::ostream* sink) { return sink->good(); });
}

} // namespace hooptab
