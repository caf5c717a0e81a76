// The statistics of a season: what each player, line and team did in the selected games. Sums only; what a
// cell shows is SeasonColumns' work. Holds numbers of its own but names through the catalogue, which must
// outlive it and not be scanned anew meanwhile.
#pragma once

#include "catalogue/GameCatalogue.h"
#include "game/Side.h"
#include "insight/GameInsight.h"
#include "scorecard/BoxScore.h"
#include "storage/TaskWatch.h"

#include <array>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace hooptab {

// In sums over many games, the team that they are about; the other side is whoever it played.
inline constexpr Side kOwnSide = Side::Visitor;

// A player or line of the season tables.
struct SeasonRow {
  SeasonId id = kNobody; // in the catalogue's players or lines
  SeasonId team = kNobody;
  std::string number;  // jersey; a line's number within the table
  std::string name;    // player's name; a line's jerseys
  std::string players; // of a line: jerseys and family names; empty for a player
  int nameOrder = 0;   // of players: their place among all names
  int games = 0;       // at least 1
  int teamGames = 0;   // selected games of the team
  BoxNumbers numbers;
  std::optional<PlayerExtras> extras; // of players
  CourtShare onCourt;                 // what both teams did meanwhile; nothing from games of totals
  int rank = 0;                       // by points, then rating, then name; from 1
  std::vector<int> positions; // players: one after another by date, each change once; the last is today's

  // Averages of a line over so short a time say little; they are marked where they are shown.
  static constexpr int kShortSeconds = 10 * 60;
  [[nodiscard]] bool isShort() const { return numbers.seconds < kShortSeconds; }
  // Nothing where no game tells who was on court.
  [[nodiscard]] std::optional<int> plusMinus() const {
    return onCourt.isEmpty() ? std::nullopt : std::optional(onCourt.plusMinus(kOwnSide));
  }
};

struct SeasonTeamRow {
  SeasonId team = kNobody;
  int games = 0, wins = 0, losses = 0, ties = 0;
  int pointsFor = 0, pointsAgainst = 0;
  BoxNumbers numbers; // all players, those without a row of their own included; seconds are theirs together
  BoxNumbers opponents;
  int ownRebounds = 0, ownTurnovers = 0; // offensive rebounds and turnovers that are no player's
  CourtShare counted;                    // both teams in the games from events, whose possessions are known

  [[nodiscard]] double estimatedPossessions() const {
    return hooptab::estimatedPossessions(numbers) - ownRebounds + ownTurnovers;
  }
};

// What one player or line did in one game.
struct GameResult {
  std::size_t game = 0; // in the catalogue
  Side side = Side::Visitor;
  BoxNumbers numbers;
  std::optional<PlayerExtras> extras; // both as in SeasonRow
  CourtShare onCourt;
};

// Counts that few have: nothing added to nothing stays nothing.
void addExtras(std::optional<PlayerExtras>& sum, const std::optional<PlayerExtras>& added);

// Both teams in a game from events, seen by one of them; nothing of a game of totals.
[[nodiscard]] CourtShare wholeOfGame(const ListedGame& game, Side side);

class SeasonStatistics {
 public:
  // Which rows are shown; what is left empty shows all.
  struct Shown {
    std::string team;            // its key
    std::optional<int> position; // of players: the one in their latest selected game
  };
  // `games` are places in the catalogue's games, as its select() gives them.
  // Cancelled, they are of some of the games only, and worth nothing. Each game is summed for the teams, the
  // players and the lines: these steps are told.
  SeasonStatistics(const GameCatalogue& catalogue, std::vector<std::size_t> games, const Shown& shown,
                   const TaskWatch& watch = {});

  const GameCatalogue& catalogue() const { return *m_catalogue; }
  std::span<const std::size_t> games() const { return m_games; }
  // In order of rank.
  std::span<const SeasonRow> players() const { return m_players; }
  std::span<const SeasonRow> lines() const { return m_lines; }
  // In order of first appearance.
  std::span<const SeasonTeamRow> teams() const { return m_teams; }
  // What the games call the user's own two statistics; several names joined by " / ", empty without any.
  const std::array<std::string, 2>& labels() const { return m_labels; }

  // The selected games of a player or of a line, in order of date.
  [[nodiscard]] std::vector<GameResult> resultsOfPlayer(SeasonId player, const TaskWatch& watch = {}) const;
  [[nodiscard]] std::vector<GameResult> resultsOfLine(SeasonId line, const TaskWatch& watch = {}) const;

 private:
  void sumTeams(std::optional<SeasonId> shownTeam, const TaskWatch& watch);
  void joinLabels();
  template <class Row>
  [[nodiscard]] std::vector<SeasonRow> sumRows(std::vector<Row> ListedGame::*rows, std::size_t ids,
                                               std::optional<SeasonId> shownTeam,
                                               const TaskWatch& watch) const;
  template <class Row>
  [[nodiscard]] std::vector<GameResult> resultsOf(std::vector<Row> ListedGame::*rows, SeasonId id,
                                                  const TaskWatch& watch) const;

  const GameCatalogue* m_catalogue;
  std::vector<std::size_t> m_games;
  std::vector<SeasonRow> m_players;
  std::vector<SeasonRow> m_lines;
  std::vector<SeasonTeamRow> m_teams;
  std::array<std::string, 2> m_labels;
};

} // namespace hooptab
