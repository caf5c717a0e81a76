// The table of a league from the selected games: who won and lost, at home and away and of late, how far
// behind the first, and what was scored. Teams with equal shares of wins are ordered by the games between
// them. Shows nothing.
#pragma once

#include "season/SeasonStatistics.h"

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace hooptab {

enum class GameOutcome : std::uint8_t { Win, Loss, Tie };

struct Balance {
  int wins = 0, losses = 0, ties = 0;

  [[nodiscard]] int games() const { return wins + losses + ties; }
  void add(GameOutcome outcome);
  friend bool operator==(const Balance&, const Balance&) = default;
};

struct Standing {
  static constexpr std::size_t kLatest = 5;

  SeasonId team = kNobody;
  Balance all, home, away;
  std::vector<GameOutcome> latest; // by date, the last one behind
  int streak = 0;                  // games won in a row, below 0: lost; 0 after a tie
  int pointsFor = 0, pointsAgainst = 0;
  int halfGamesBehind = 0; // the first of the table
  CourtShare counted;      // both teams in the games whose possessions are known

  // Of its games those it won, ties half; 0 before the first.
  [[nodiscard]] double share() const;
  // Points a game.
  [[nodiscard]] double average(int points) const;
  [[nodiscard]] double difference() const { return average(pointsFor - pointsAgainst); }
};

class Standings {
 public:
  // `games` are places in the catalogue's games, by date. A team that plays itself plays no game of a league.
  Standings(const GameCatalogue& catalogue, std::span<const std::size_t> games);

  // The first one first. Equal shares of wins are parted by the table of the games between the teams that
  // share them, once each of them has played another of them: by its shares of wins, then by its difference
  // of points. As soon as it parts some of them, those who are still equal have a table of their own. Then
  // decide the difference of all games, and the points scored.
  [[nodiscard]] std::span<const Standing> rows() const { return m_rows; }

 private:
  struct Duel {
    SeasonId team = kNobody, other = kNobody;
    int points = 0, pointsAgainst = 0;
  };
  void add(const ListedGame& game, Side side);
  void order(std::span<Standing> rows) const;
  [[nodiscard]] bool partByDuels(std::span<Standing> rows) const;
  template <class Key>
  [[nodiscard]] bool part(std::span<Standing> rows, const Key& key) const;

  std::vector<Standing> m_rows;
  std::vector<Duel> m_duels; // each game once for each team
};

// "6–1", with ties "6–1–2".
[[nodiscard]] std::string balanceText(const Balance& balance);
// ".786", "1.000".
[[nodiscard]] std::string shareText(const Standing& standing);
// "2.0"; "–" for who is not behind.
[[nodiscard]] std::string behindText(const Standing& standing);
// "W4".
[[nodiscard]] std::string streakText(const Standing& standing, const Texts& texts);
// "W", "L" or "T".
[[nodiscard]] std::string_view outcomeText(GameOutcome outcome, const Texts& texts);

} // namespace hooptab
