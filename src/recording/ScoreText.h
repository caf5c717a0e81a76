// What the scoreboard of the live window says, in words and figures: clock, period, the clock's button,
// points and fouls by period; and what a typed clock means. Lays out nothing.
#pragma once

#include "game/Side.h"
#include "recording/LiveMoment.h"
#include "settings/Texts.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace hooptab {

[[nodiscard]] std::string clockShown(const LiveMoment& game);                    // "--:--" without time
[[nodiscard]] std::string leadTimeShown(const LiveGame& game, LeadState state);  // the same
[[nodiscard]] std::string periodShown(const LiveGame& game, const Texts& texts); // "2", "OT1"
// What a press on the clock's button does: START, STOP, or "---" once the game is over.
[[nodiscard]] std::string startShown(const LiveGame& game, const Texts& texts);
// Both teams' points and fouls, period by period; the last row holds period 8 and all behind it, as "8+".
struct ScoreByPeriod {
  struct Row {
    std::string period; // as it is shown: "2", "OT1"
    PerSide<PeriodEntry> ofTeam = {};
  };
  std::vector<Row> periods; // up to the present one
  PerSide<int> points = {};
};
[[nodiscard]] ScoreByPeriod scoreByPeriod(const LiveGame& game, const Texts& texts);
enum class ByPeriod { Points, Fouls };
// Of the periods played, "1: 20   2: 18".
[[nodiscard]] std::string shownByPeriod(const LiveGame& game, Side team, ByPeriod what, const Texts& texts);

// "7:05", "07:05", "705" or "0705" in seconds, and "7" or "07" as minutes alone; none for anything else and
// for more than `longest` seconds.
[[nodiscard]] std::optional<int> typedClock(std::string_view text, int longest);

} // namespace hooptab
