// The one table of rates: what is computed of a player, a line or a team with what both teams did meanwhile.
// Box scores, comparisons, season tables, reports and command line read it; docs/formats/statistics.md gives
// each formula with its source.
#pragma once

#include "game/GameState.h"
#include "insight/CourtShare.h"
#include "settings/Text.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace hooptab {

// What rates are computed from. Of a team or a line `own` is what it did together.
struct RateBasis {
  Side team = Side::Visitor;
  BoxNumbers own;
  CourtShare meanwhile; // of both teams, while he was on court
  PlayerExtras extras = {};

  // Of a team in a whole game, or of a line while it was on court.
  [[nodiscard]] static RateBasis ofAll(Side team, const CourtShare& share) {
    return {team, share.numbers(team), share};
  }
};

enum class RateKind : std::uint8_t {
  Share,  // 0.5 for 50 %
  Number, // of points, possessions, or for each hundred of them
};

struct Rate {
  std::string_view name; // for files and the command line: "eFG"
  Text words;
  Text tip; // the formula in words
  RateKind kind;
  // Nothing where there is nothing to divide by.
  std::optional<double> (*value)(const RateBasis& basis);
  bool isOfPlayersOnly = false;
  bool isBetterLow = false;
};
[[nodiscard]] std::span<const Rate> rates();
// Throws std::invalid_argument for a name that is not in the table.
[[nodiscard]] const Rate& rateNamed(std::string_view name);

// "55.6" of either kind, without a percent sign; "–" for nothing.
[[nodiscard]] std::string rateText(const Rate& rate, const std::optional<double>& value);

} // namespace hooptab
