// A team on one page, for whoever is to play against it: its averages, what to know of it in sentences, its
// players, where it shoots from and is shot at, its periods and line-ups, and lines for notes. Sums are those
// of the season's statistics; what games of totals do not tell stands as a dash.
#pragma once

#include "report/Report.h"
#include "season/SeasonStatistics.h"
#include "settings/Texts.h"

#include <optional>

namespace hooptab {

// `reader` is the team of the coach that it is made for. Without a team, or without a selected game of it, it
// holds no tables.
[[nodiscard]] Report scoutSheet(const SeasonStatistics& statistics, std::optional<SeasonId> team,
                                std::optional<SeasonId> reader, const Texts& texts);

} // namespace hooptab
