// What hooptab-cli prints of a season, each as one text.
#pragma once

#include "season/SeasonStatistics.h"
#include "storage/Texts.h"

#include <optional>
#include <string>

namespace hooptab {

// Games, teams, players and lines in totals, players per game and per minute, and files that were not read.
[[nodiscard]] std::string seasonText(const SeasonStatistics& statistics, std::optional<SeasonId> team,
                                     const Texts& texts);
// The same in every language: keys, positions and reasons in English.
[[nodiscard]] std::string seasonJson(const SeasonStatistics& statistics, std::optional<SeasonId> team);
// Players and lines in each of the three views, all columns (RFC 4180).
[[nodiscard]] std::string seasonCsv(const SeasonStatistics& statistics, const Texts& texts);

[[nodiscard]] std::string skipReasonInEnglish(SkipReason reason);

} // namespace hooptab
