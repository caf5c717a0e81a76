#include "season/TeamStudy.h"

#include "catalogue/Jersey.h"
#include "game/EventWords.h"

#include <algorithm>
#include <map>

namespace hooptab {

namespace {

constexpr std::size_t kLastGames = 5;

void add(TeamSplit& split, const ListedGame& game, Side side) {
  const std::optional<Side> winner = game.winner();
  split.balance.add(!winner ? GameOutcome::Tie : *winner == side ? GameOutcome::Win : GameOutcome::Loss);
  split.pointsFor += game.points[side];
  split.pointsAgainst += game.points[otherSide(side)];
  split.counted += wholeOfGame(game, side);
}

CourtShare shareOf(const LineRow& line) {
  CourtShare share;
  share.seconds = line.seconds;
  share.counters[kOwnSide] += line.counters;
  share.counters[otherSide(kOwnSide)] += line.opponents;
  share.possessions[kOwnSide] = line.possessions[line.side];
  share.possessions[otherSide(kOwnSide)] = line.possessions[otherSide(line.side)];
  return share;
}

using Players = std::vector<SeasonId>; // ascending

Players playersOf(const ListedGame& game, const LineRow& line) {
  Players players;
  for (std::size_t i = 0; i < game.players.size(); ++i) {
    if (line.has(i) && game.players[i].id != kNobody)
      players.push_back(game.players[i].id);
  }
  std::ranges::sort(players);
  return players;
}

// Calls for each choice of `size` of the players from `begin` on, behind those chosen already.
template <class Call>
void forEachChoice(const Players& players, std::size_t begin, std::size_t size, Players& chosen,
                   const Call& call) {
  if (chosen.size() == size)
    return call(chosen);
  for (std::size_t i = begin; i + size <= players.size() + chosen.size(); ++i) {
    chosen.push_back(players[i]);
    forEachChoice(players, i + 1, size, chosen, call);
    chosen.pop_back();
  }
}

} // namespace

std::vector<std::size_t> gamesOfTeam(const SeasonStatistics& statistics, SeasonId team) {
  std::vector<std::size_t> games;
  for (const std::size_t index : statistics.games()) {
    const ListedGame& game = statistics.catalogue().games()[index];
    if (game.team[Side::Visitor] == team || game.team[Side::Home] == team)
      games.push_back(index);
  }
  std::ranges::reverse(games);
  return games;
}

std::vector<TeamSplit> splitsOf(const SeasonStatistics& statistics, SeasonId team) {
  enum { kAll, kWins, kLosses, kHome, kAway, kLast };
  std::vector<TeamSplit> splits(kLast + 1);
  constexpr Text kNames[] = {Text::CheckAllGames, Text::SplitWins,     Text::SplitLosses,
                             Text::StandingsHome, Text::StandingsAway, Text::LastFiveGames};
  for (std::size_t i = 0; i < splits.size(); ++i)
    splits[i].name = kNames[i];
  std::size_t count = 0;
  for (const std::size_t index : gamesOfTeam(statistics, team)) {
    const ListedGame& game = statistics.catalogue().games()[index];
    const Side side = game.team[Side::Visitor] == team ? Side::Visitor : Side::Home;
    const std::optional<Side> winner = game.winner();
    add(splits[kAll], game, side);
    if (winner)
      add(splits[*winner == side ? kWins : kLosses], game, side);
    add(splits[side == Side::Home ? kHome : kAway], game, side);
    if (count++ < kLastGames)
      add(splits[kLast], game, side);
  }
  return splits;
}

std::vector<SeasonCombination> combinationsOf(const SeasonStatistics& statistics, SeasonId team, int size) {
  std::map<Players, CourtShare> shares;
  Players chosen;
  for (const std::size_t index : gamesOfTeam(statistics, team)) {
    const ListedGame& game = statistics.catalogue().games()[index];
    for (const LineRow& line : game.lines) {
      if (game.team[line.side] != team)
        continue;
      const CourtShare share = shareOf(line);
      forEachChoice(playersOf(game, line), 0, static_cast<std::size_t>(size), chosen,
                    [&](const Players& players) { shares[players] += share; });
    }
  }
  std::vector<SeasonCombination> combinations;
  combinations.reserve(shares.size());
  const auto jerseyOf = [&](SeasonId player) {
    return canonicalJersey(statistics.catalogue().players()[player].number);
  };
  for (auto& [players, share] : shares) {
    SeasonCombination& combination = combinations.emplace_back(SeasonCombination{players, share});
    std::ranges::sort(combination.players, jerseyBefore, jerseyOf);
  }
  std::ranges::stable_sort(combinations, std::ranges::greater(),
                           [](const SeasonCombination& each) { return each.share.seconds; });
  return combinations;
}

std::string combinationName(const GameCatalogue& catalogue, const SeasonCombination& combination) {
  std::string name;
  for (const SeasonId id : combination.players) {
    const SeasonPlayer& player = catalogue.players()[id];
    name += (name.empty() ? "" : ", ") + player.number + " " + familyName(player.name);
  }
  return name;
}

SeasonOnOff onOffOf(const GameCatalogue& catalogue, std::span<const GameResult> results) {
  SeasonOnOff both;
  for (const GameResult& result : results) {
    both.on += result.onCourt;
    both.off += wholeOfGame(catalogue.games()[result.game], result.side);
  }
  both.off -= both.on;
  return both;
}

TeamCourse courseOf(const SeasonStatistics& statistics, SeasonId team) {
  TeamCourse course;
  for (const std::size_t index : gamesOfTeam(statistics, team)) {
    const ListedGame& game = statistics.catalogue().games()[index];
    if (!game.isFromEvents())
      continue;
    const Side side = game.team[Side::Visitor] == team ? Side::Visitor : Side::Home;
    ++course.games;
    course.periods.resize(std::max(course.periods.size(), game.periodPoints.size()));
    for (std::size_t i = 0; i < game.periodPoints.size(); ++i) {
      TeamCourse::Period& period = course.periods[i];
      ++period.games;
      period.pointsFor += game.periodPoints[i][side];
      period.pointsAgainst += game.periodPoints[i][otherSide(side)];
    }
    course.paint += game.origins[side].paint;
    course.fromTurnovers += game.origins[side].fromTurnovers;
    course.secondChance += game.origins[side].secondChance;
  }
  return course;
}

int startsOf(const SeasonStatistics& statistics, SeasonId player) {
  const auto hasStarted = [&](std::size_t index) {
    const ListedGame& game = statistics.catalogue().games()[index];
    for (std::size_t row = 0; row < game.players.size(); ++row) {
      if (game.players[row].id == player && game.isStarter(row))
        return true;
    }
    return false;
  };
  return static_cast<int>(std::ranges::count_if(statistics.games(), hasStarted));
}

} // namespace hooptab
