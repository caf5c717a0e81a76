// The table of a league from the selected games: who won and lost, at home and away and of late, how far
// behind the first, and what was scored. Teams with equal shares of wins are parted by the rules that most of
// the games name. Shows nothing.
#pragma once

#include "season/SeasonStatistics.h"
#include "season/TieRules.h"

#include <cstdint>
#include <map>
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

enum class PracticeGames : std::uint8_t { LeftOut, Counted };

class Standings {
 public:
  // `games` are places in the catalogue's games, by date. A team that plays itself plays no game of a league.
  Standings(const GameCatalogue& catalogue, std::span<const std::size_t> games,
            PracticeGames practice = PracticeGames::Counted);

  // The first one first. Equal shares of wins are parted by the criteria of the rules, one after another; as
  // soon as one parts some of the teams, those who are still equal are asked anew. Games between teams count
  // once each of them has played another of them.
  [[nodiscard]] std::span<const Standing> rows() const { return m_rows; }
  [[nodiscard]] const TieRules& ties() const { return *m_ties; }

 private:
  struct Duel {
    SeasonId team = kNobody, other = kNobody;
    int points = 0, pointsAgainst = 0;
  };
  // What some of the games come to.
  struct Part {
    Balance balance;
    int points = 0, pointsAgainst = 0;

    void add(const Duel& duel);
  };
  using Parts = std::map<SeasonId, Part>; // by team; of those that are to be parted

  void add(const ListedGame& game, Side side);
  void order(std::span<Standing> rows) const;
  [[nodiscard]] bool partBy(TieCriterion criterion, std::span<Standing> rows) const;
  [[nodiscard]] bool partAgainstTheBest(std::span<Standing> rows) const;
  template <class Key>
  [[nodiscard]] bool partBetween(std::span<Standing> rows, const Key& key) const;
  template <class Key>
  [[nodiscard]] bool part(std::span<Standing> rows, const Key& key) const;

  std::vector<Standing> m_rows;
  std::vector<Duel> m_duels;           // each game once for each team
  std::map<SeasonId, double> m_shares; // of wins, by team
  const TieRules* m_ties;
};

// "6–1", with ties "6–1–2".
[[nodiscard]] std::string balanceText(const Balance& balance);
// ".786", "1.000".
[[nodiscard]] std::string shareText(const Standing& standing);
// "2.0"; "–" for who is not behind.
[[nodiscard]] std::string behindText(const Standing& standing);
// "W4".
[[nodiscard]] std::string streakText(const Standing& standing, const Texts& texts);
// "Ties: FIBA – wins, difference and points between them, then in all games".
[[nodiscard]] std::string tiesText(const TieRules& rules, const Texts& texts);
// "W", "L" or "T".
[[nodiscard]] std::string_view outcomeText(GameOutcome outcome, const Texts& texts);

} // namespace hooptab
