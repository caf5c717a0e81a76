// What all that the feed tells has in common: its head, and how teams, colours, time-outs and zones are
// written.
#pragma once

#include "court/CourtGeometry.h"
#include "feed/FeedGame.h"
#include "feed/JsonWriter.h"
#include "game/TimeOuts.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace hooptab {

// Id, state, clock, and how it is told; into an object that is open.
void writeFeedHead(JsonWriter& json, const RunningGame& game, const FeedMoment& moment,
                   const FeedOptions& options);
// 0, 1 or null.
void writeTeamNumber(JsonWriter& json, const std::optional<Side>& team);
// Members `left` and `of`; null where the rules of the game name none.
void writeTimeOuts(JsonWriter& json, const std::optional<TimeOuts>& timeOuts);
// "#3c82a0" of a colour as games keep it.
[[nodiscard]] std::string webColour(std::uint32_t stored);
// "underBasket", "leftCorner".
[[nodiscard]] std::string_view zoneName(court::ChartZone zone);

} // namespace hooptab
