// The box score of a team on one screen: a row for each player, with who started, who did not play and who is
// out; of the many columns on offer the chosen ones. Says what a cell means, and not how it looks.
#pragma once

#include "game/OwnRating.h"
#include "insight/GameInsight.h"
#include "insight/Rates.h"
#include "scorecard/BoxScore.h"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace hooptab {

struct CompactCell {
  enum class Emphasis : std::uint8_t { None, Faint, Best, Up, Down, Out };

  std::string text;
  double sortValue = 0;
  Emphasis emphasis = Emphasis::None;
  friend bool operator==(const CompactCell&, const CompactCell&) = default;
};

// All that a cell is computed from.
struct CompactBasis {
  const BoxRow& row;
  const RateBasis& rates;
  const GameDetails& details;
  const Texts& texts;
  const OwnRating& ownRating;
  bool hasMargin = false; // it is known what the score did while he was on court
};

struct CompactColumn {
  enum class Group : std::uint8_t { Points, Shots, Rebounds, Play, Fouls, Margin, Rating, Rates };

  std::string_view name;   // its head in both languages, and what a choice of columns is kept by
  std::string_view widest; // that it ever holds
  Group group;
  Text words;
  Text tip; // the formula; none: the words
  CompactCell (*cell)(const CompactBasis& basis);
  bool isUsual = true;
  bool hasBest = false; // the most of a column stands out
  bool isTime = false;
};
// That of the user's own rating, whose head he chooses.
inline constexpr std::string_view kOwnRatingColumn = "OWN";
[[nodiscard]] std::span<const CompactColumn> compactColumns();

// Which of them are shown, from left to right, as places among all. Kept as text: "MIN,PTS,2P".
using CompactChoice = std::vector<std::size_t>;
[[nodiscard]] CompactChoice usualCompactColumns();
[[nodiscard]] std::string textOfChoice(const CompactChoice& choice);
// Names that are no columns are left out, and so are those that come again; the usual ones where none is
// left.
[[nodiscard]] CompactChoice choiceOfText(std::string_view text);

struct CompactRow {
  std::string number;
  std::string name;
  std::string position; // a letter, or nothing
  double numberSortValue = 0;
  bool isStarter = false;
  bool isTotal = false;
  bool didNotPlay = false; // then there are no cells
  std::vector<CompactCell> cells = {};
  friend bool operator==(const CompactRow&, const CompactRow&) = default;
};
// In the order of the roster, the total last. `insight` is that of the game counted, `starters` has a bit for
// each player entry that began the whole game.
[[nodiscard]] std::vector<CompactRow> compactRows(const CountedGame& counted, const GameInsight& insight,
                                                  unsigned starters, Side team, const CompactChoice& choice,
                                                  const Texts& texts, const OwnRating& ownRating = {});

} // namespace hooptab
