// What a game's events say together with the line-ups in which they fell: what both teams did while each
// player and each line was on court, line against line, and where the points came from. Computed from the
// whole list in less time than an event may take, so a running game is counted anew after each of its
// events, corrections included. The formulas are in docs/formats/statistics.md. Shows nothing.
#pragma once

#include "game/CountedGame.h"
#include "insight/CourtShare.h"

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

namespace hooptab {

// One line against another. An entry of 0 is nobody, or a line behind the hundredth.
struct Matchup {
  PerSide<int> line = {};
  CourtShare share;
};

// Points of a team. Those of the bench are its players' who did not start.
struct PointOrigins {
  int paint = 0;         // field goals from inside the box; without a place those at the basket by their kind
  int fromTurnovers = 0; // in the possession that follows the other team's turnover
  int secondChance = 0;  // behind an offensive rebound of the same possession, the team's own included
  std::optional<int> bench = {}; // none of a team whose line-ups nobody recorded
  int quick = 0;                 // within kQuickSeconds of gaining the ball
  // Of shots that were recorded as such; none where no shot of the game was.
  std::optional<int> fastBreak = {};
  friend bool operator==(const PointOrigins&, const PointOrigins&) = default;
};

struct GameInsight {
  static constexpr int kQuickSeconds = 8;
  static constexpr int kClutchSeconds = 5 * 60;
  static constexpr int kClutchPoints = 5;

  // False of a game entered as totals: it has no line-ups and no order, so only `whole` has counts.
  bool isFromEvents = false;
  CourtShare whole;              // its seconds: those in which a team had players on court
  CourtShare clutch;             // from five minutes before the end on, while no team led by more than five
  std::vector<Matchup> matchups; // in order of first appearance, those in which something happened
  PerSide<std::array<CourtShare, GameState::kPlayerEntries>> players = {}; // while on court; by entry
  PerSide<std::uint16_t> starters = {}; // bit n: player entry n was on court when the clock ran first
  PerSide<PointOrigins> origins = {};

  [[nodiscard]] bool isStarter(Side team, int player) const {
    return player > 0 && (static_cast<unsigned>(starters[team]) >> static_cast<unsigned>(player) & 1U) != 0;
  }
  // Against whomever.
  [[nodiscard]] CourtShare ofLine(Side team, int line) const;
};

// The starters of a stretch are those of the whole game, who may be given.
using Starters = PerSide<std::uint16_t>; // bit n: player entry n
[[nodiscard]] GameInsight insightOf(const Game& game, const std::optional<Starters>& starters = {});

// FGA + 0.44 FTA - OR + TO of a team, its own rebounds and turnovers included: what is published as
// possessions where nobody counts them.
[[nodiscard]] double estimatedPossessions(const BoxNumbers& numbers, const TeamRow& ofTeam = {});

} // namespace hooptab
