// How much a player must have played for his averages to be compared with those of others: a league's
// minimum, that grows with the games of his team. Decides who leads, and which rows of averages are marked.
#pragma once

#include "season/SeasonColumns.h"

namespace hooptab {

struct Qualification {
  static constexpr int kMostPercent = 100;
  static constexpr int kMostMinutes = 48;
  static constexpr int kMostAttempts = 30;

  // As leagues have them: seven games in ten, a quarter of each game, and two shots of a kind in each.
  int gamesPercent = 70; // 0 to 100, of the games that his team played: for averages per game
  int minutes = 10;      // for each game of his team: for averages per minute and per 40 minutes
  int attempts = 2;      // of the kind, for each game of his team: to lead in a percentage

  // Whether a player may lead in that column. Totals have no minimum.
  [[nodiscard]] bool isMet(const SeasonRow& row, int column, SeasonView view) const;
  // Of those shots, enough for a percentage to count.
  [[nodiscard]] bool hasTried(const SeasonRow& row, ShotKinds kinds) const;
  // Whether the averages of a row say little. Lines, which seldom play long, have a minimum of their own:
  // ten minutes in all.
  [[nodiscard]] bool isUnder(const SeasonRow& row, SeasonTable table, SeasonView view) const;

  friend bool operator==(const Qualification&, const Qualification&) = default;
};

} // namespace hooptab
