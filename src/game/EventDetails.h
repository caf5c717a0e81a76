// What more is known of an event than that it happened: fields "KEY=VALUE" behind those of the grammar, which
// older readers keep and pass over. Sets and carries them in the text of a line; GameEvent::detail reads
// them. The keys are described in docs/formats/game.md.
#pragma once

#include "game/GameEvent.h"
#include "game/Side.h"

#include <string>
#include <string_view>
#include <vector>

namespace hooptab {

namespace detail_key {
inline constexpr std::string_view kKind = "K";          // of a foul, a turnover, a shot, a time-out
inline constexpr std::string_view kDrawnBy = "D";       // of a foul: "1-07"
inline constexpr std::string_view kFreeThrows = "F";    // of a foul: how many were awarded
inline constexpr std::string_view kShooter = "S";       // of a block: whose shot it was
inline constexpr std::string_view kFastBreak = "Q";     // of a shot: "F"
inline constexpr std::string_view kX = "X", kY = "Y";   // of a shot whose kind has no place of its own
inline constexpr std::string_view kNumberOfThrow = "N"; // of a free throw: "2/3"
inline constexpr std::string_view kWonBy = "W";         // of a jump ball: "0" or "1"
inline constexpr std::string_view kDoubtful = "?";      // of any event: "1"
} // namespace detail_key

// A line (or what stands behind its clock) with that detail behind all else, in place of the one that it had;
// an empty value takes it away. What the grammar has before it and the line lacks (the lists of a stop, the
// place of a shot) stays empty.
[[nodiscard]] std::string withDetail(std::string_view line, std::string_view key, std::string_view value);

// All whom an event names: who did it, both who jump, who drew the foul, whose shot was blocked.
[[nodiscard]] std::vector<PlayerReference> playersNamedBy(const GameEvent& event);

// The text of an event of that kind and team that takes the place of another, with the details of that one
// that still hold: those of a field goal while it stays one, those of a foul likewise, but for its kind where
// it becomes a technical one, and that of a time-out which is or was nobody's; who drew it or whose shot it
// was, while the team stays. A doubt is settled by the change, and the place is the new text's own.
[[nodiscard]] std::string withDetailsOf(const GameEvent& old, std::string text, EventCode kind,
                                        std::optional<Side> team);

} // namespace hooptab
