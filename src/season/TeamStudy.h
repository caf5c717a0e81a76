// What a coach asks about a team or a player over the selected games: how won and lost games differ, which of
// his players do well together, and what changes while one of them sits. Shows nothing.
#pragma once

#include "season/Standings.h"

#include <span>
#include <vector>

namespace hooptab {

// Some of a team's games.
struct TeamSplit {
  Text name = Text::None;
  Balance balance;
  int pointsFor = 0, pointsAgainst = 0;
  CourtShare counted; // both teams in the games whose possessions are known

  [[nodiscard]] double average(int points) const {
    return balance.games() == 0 ? 0 : static_cast<double>(points) / balance.games();
  }
};
// All games, those won and lost, at home and away, and the last five. None is left out, whatever it holds.
[[nodiscard]] std::vector<TeamSplit> splitsOf(const SeasonStatistics& statistics, SeasonId team);

// Places in the catalogue of a team's selected games, the last one first.
[[nodiscard]] std::vector<std::size_t> gamesOfTeam(const SeasonStatistics& statistics, SeasonId team);

// Players of a team together on court, whoever else was.
struct SeasonCombination {
  std::vector<SeasonId> players; // in the catalogue, by jersey
  CourtShare share;
};
// Every set of so many players who were on court together; the longest together first.
[[nodiscard]] std::vector<SeasonCombination> combinationsOf(const SeasonStatistics& statistics, SeasonId team,
                                                            int size);
// "4 Able, 5 Baker".
[[nodiscard]] std::string combinationName(const GameCatalogue& catalogue,
                                          const SeasonCombination& combination);

// Of the games that somebody played in: while he was on court, and while he was not.
struct SeasonOnOff {
  CourtShare on, off;
};
[[nodiscard]] SeasonOnOff onOffOf(const GameCatalogue& catalogue, std::span<const GameResult> results);

// A team's games from events as they went: its points and those against it period by period, and where its
// own came from.
struct TeamCourse {
  struct Period {
    int games = 0; // that had it
    int pointsFor = 0, pointsAgainst = 0;
  };
  int games = 0;
  std::vector<Period> periods; // those of the rules, the first one first
  int paint = 0, fromTurnovers = 0, secondChance = 0;
};
[[nodiscard]] TeamCourse courseOf(const SeasonStatistics& statistics, SeasonId team);
// In how many of them he was on court when the clock ran first.
[[nodiscard]] int startsOf(const SeasonStatistics& statistics, SeasonId player);

} // namespace hooptab
