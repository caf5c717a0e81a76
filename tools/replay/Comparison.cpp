#include "tools/replay/Comparison.h"

#include "game/Tally.h"

#include <array>
#include <map>
#include <sstream>

namespace hooptab {

namespace {

// All that is compared, by name.
using Counts = std::map<std::string, int>;

void addCounters(Counts& counts, const std::string& whose, const Counters& counters) {
  for (std::size_t i = 0; i < kCounterCount; ++i) {
    const auto counter = static_cast<Counter>(i);
    if (counters[counter] != 0)
      counts[whose + ' ' + std::string(counterName(counter))] = counters[counter];
  }
}

void addTeam(Counts& counts, const GameState& state, const Roster& roster, Side team) {
  const std::string side = "team " + std::to_string(numberOf(team));
  for (std::size_t entry = 0; entry < state.players[team].size(); ++entry) {
    const RosterPlayer* player = roster.player(static_cast<int>(entry));
    const std::string who = side + " player " + (player == nullptr ? "?" : player->jersey);
    addCounters(counts, who, state.players[team][entry].counters);
    counts[who + " seconds"] = state.players[team][entry].seconds;
  }
  for (const LineEntry& line : state.lines[team]) {
    const std::string which = side + " line " + line.list;
    addCounters(counts, which, line.counters);
    if (line.seconds != 0)
      counts[which + " seconds"] = line.seconds;
  }
  for (std::size_t row = 0; row < state.periods[team].size(); ++row) {
    const std::string which = side + " period " + std::to_string(row);
    counts[which + " points"] = state.periods[team][row].points;
    counts[which + " fouls"] = state.periods[team][row].fouls;
  }
  for (std::size_t entry = 0; entry < state.extras[team].size(); ++entry) {
    const std::string which = side + " entry " + std::to_string(entry);
    counts[which + " fouls drawn"] = state.extras[team][entry].foulsDrawn;
    counts[which + " blocks against"] = state.extras[team][entry].blocksAgainst;
  }
  const TeamRow& row = state.teamRows[team];
  counts[side + " offensive rebounds of the team"] = row.offensiveRebounds;
  counts[side + " defensive rebounds of the team"] = row.defensiveRebounds;
  counts[side + " turnovers of the team"] = row.turnovers;
  counts[side + " technicals of the bench"] = row.benchTechnicals;
  counts[side + " time-outs"] = row.timeOuts;
}

Counts counted(const Game& game) {
  Counts counts;
  GameState state;
  Tally tally(state, game.roster[Side::Visitor], game.roster[Side::Home]);
  tally.clear();
  PerSide<int> before = {};
  for (std::size_t index = 0; index < game.events.size(); ++index) {
    tally.apply(game.events[index], index);
    const PerSide<int> now = {state.points(Side::Visitor), state.points(Side::Home)};
    const int gain = (now[Side::Visitor] - before[Side::Visitor]) - (now[Side::Home] - before[Side::Home]);
    for (const Side team : kSides) {
      if (gain == 0)
        break;
      const std::string& list = state.lines[team][state.currentLine[team]].list;
      counts["team " + std::to_string(numberOf(team)) + " line " + list + " plus minus"] +=
          team == Side::Visitor ? gain : -gain;
    }
    before = now;
  }
  for (const Side team : kSides)
    addTeam(counts, state, game.roster[team], team);
  for (std::size_t lead = 0; lead < state.lead.seconds.size(); ++lead) {
    counts["seconds in lead " + std::to_string(lead)] = state.lead.seconds[lead];
    counts["times in lead " + std::to_string(lead)] = state.lead.times[lead];
  }
  return counts;
}

} // namespace

std::vector<std::string> differences(const Game& recorded, const Game& original) {
  Counts found = counted(recorded);
  const Counts wanted = counted(original);
  std::vector<std::string> lines;
  const auto add = [&](const std::string& what, int is, int shouldBe) {
    std::ostringstream line;
    line << what << ": " << is << " instead of " << shouldBe;
    lines.push_back(line.str());
  };
  for (const auto& [what, count] : wanted) {
    if (found[what] != count)
      add(what, found[what], count);
  }
  for (const auto& [what, count] : found) {
    if (!wanted.contains(what) && count != 0)
      add(what, count, 0);
  }
  return lines;
}

} // namespace hooptab
