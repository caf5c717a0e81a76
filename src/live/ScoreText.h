// What the scoreboard of the live window says, in words and figures: clock, period, the clock's button,
// points and fouls by period; and what a typed clock means. Lays out nothing.
#pragma once

#include "live/LiveGame.h"
#include "storage/Texts.h"

#include <optional>
#include <string>
#include <string_view>

namespace hooptab {

[[nodiscard]] std::string clockShown(const LiveGame& game);                      // "--:--" without time
[[nodiscard]] std::string leadTimeShown(const LiveGame& game, LeadState state);  // the same
[[nodiscard]] std::string periodShown(const LiveGame& game, const Texts& texts); // "2", "OT1"
// What a press on the clock's button does: START, STOP, or "---" once the game is over.
[[nodiscard]] std::string startShown(const LiveGame& game, const Texts& texts);
enum class ByPeriod { Points, Fouls };
// Of the periods played, "1: 20   2: 18".
[[nodiscard]] std::string shownByPeriod(const LiveGame& game, int team, ByPeriod what, const Texts& texts);

// "7:05" or "07:05" in seconds; none for anything else and for more than `longest`.
[[nodiscard]] std::optional<int> typedClock(std::string_view text, int longest);

} // namespace hooptab
