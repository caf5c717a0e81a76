// What hooptab-cli prints of the insight into a game: lines of players, the flow of the score, comparisons,
// and what a box score in JSON says of them.
#pragma once

#include "cli/JsonWriter.h"
#include "insight/GameInsight.h"
#include "insight/MarginFlow.h"
#include "scorecard/BoxScore.h"
#include "scorecard/Scorecard.h"
#include "settings/Texts.h"

#include <array>
#include <optional>
#include <string>

namespace hooptab {

// --- Members of a box score

// Of a player or a line; nothing of others, of teams, and of a game without line-ups.
[[nodiscard]] std::optional<int> plusMinusOf(const GameInsight& insight, const GameState& state, Side team,
                                             const BoxRow& row);
// Of a team: possessions, points by their origin, biggest lead and run; null of a game entered as totals.
void writeTeamInsight(JsonWriter& json, const GameInsight& insight, const MarginFlow& flow,
                      const CountedGame& counted, Side team);
// Of a game: lead changes and ties.
void writeFlowCounts(JsonWriter& json, const GameInsight& insight, const MarginFlow& flow);

// --- Reports

// Each team's sets of so many players who were on court together, with what both teams did meanwhile: 5 for
// lines (of whatever size they were), 3 for trios, 2 for pairs, 1 for each player on court and off.
inline constexpr int kMostTogether = 5;
[[nodiscard]] std::string linesText(const CountedGame& counted, int size, const Texts& texts);
[[nodiscard]] std::string linesJson(const CountedGame& counted, int size);

// Each score with its margin, then what there is to say of leads and runs.
[[nodiscard]] std::string flowText(const CountedGame& counted, const Texts& texts);
[[nodiscard]] std::string flowJson(const CountedGame& counted);

// Both teams, or two players of the game, side by side: counts, rates, and of teams where points came from.
struct ComparedPlayer {
  Side team = Side::Visitor;
  int entry = 0;
};
using ComparedPlayers = std::optional<std::array<ComparedPlayer, 2>>;
[[nodiscard]] std::string compareText(const CountedGame& counted, const ComparedPlayers& players,
                                      const Texts& texts);
[[nodiscard]] std::string compareJson(const CountedGame& counted, const ComparedPlayers& players);

} // namespace hooptab
