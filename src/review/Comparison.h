// Two teams, two players, or one player in two stretches side by side: what is worth comparing, in words and
// numbers, how long its bars are, and which value is the better one. Draws nothing.
#pragma once

#include "game/CountedGame.h"
#include "insight/GameInsight.h"
#include "insight/Rates.h"
#include "insight/Stretch.h"
#include "settings/Texts.h"

#include <optional>
#include <string>
#include <vector>

namespace hooptab {

// The left one stands as the visitors', the right one as the home team's.
struct ComparisonRow {
  std::string words;
  std::string tip = {}; // the formula; empty: none
  PerSide<std::string> text = {};
  PerSide<double> share = {}; // of the room for a bar: rates on 0 to 100, counts on 1.25 times the larger
  std::optional<Side> better = {};
  bool beginsGroup = false;
  bool isTitle = false; // words alone, over the rows below it
};

// The four factors first, then what else tells them apart, the most telling first.
[[nodiscard]] std::vector<ComparisonRow> compareTeams(const GameInsight& insight, const Texts& texts);
// What the teams did when it was close at the end, as docs/formats/statistics.md says; under a title that
// says for how long, or that it never was. None of a game without events or time, or before it can be known.
[[nodiscard]] std::vector<ComparisonRow> compareClutch(const GameInsight& insight, const GameDetails& details,
                                                       const Texts& texts);
// Whomever each basis is of: counts first, then his rates.
[[nodiscard]] std::vector<ComparisonRow> comparePlayers(const RateBasis& left, const RateBasis& right,
                                                        const Texts& texts);
// Of a player entry in a game or in a stretch of one.
[[nodiscard]] RateBasis basisOfPlayer(const CountedGame& counted, const GameInsight& insight, Side team,
                                      int player);
// Whoever can be compared: those of both teams who played, in the order of the rosters.
struct PlayerOfGame {
  Side team = Side::Visitor;
  int entry = 0;
};
[[nodiscard]] std::vector<PlayerOfGame> playersOf(const CountedGame& counted);
// In what a player can be compared with himself: the halves of the regular game, and each period that was
// played.
struct NamedStretch {
  Stretch stretch;
  std::string words;
};
[[nodiscard]] std::vector<NamedStretch> usualStretches(const Game& game, const Texts& texts);
// Possessions of a team in what was counted, the mean of both.
[[nodiscard]] int possessionsOf(const GameInsight& insight);

} // namespace hooptab
