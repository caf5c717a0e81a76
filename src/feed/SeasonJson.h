// A season in JSON: games, players, lines, leaders and teams, the same in every language.
#pragma once

#include "season/Qualification.h"

#include <optional>
#include <string>

namespace hooptab {

// Keys, positions and reasons in English.
[[nodiscard]] std::string seasonJson(const SeasonStatistics& statistics, std::optional<SeasonId> team,
                                     const Qualification& minimum);

[[nodiscard]] std::string skipReasonInEnglish(SkipReason reason);

} // namespace hooptab
