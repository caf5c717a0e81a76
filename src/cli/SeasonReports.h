// What hooptab-cli prints of a season, each as one text.
#pragma once

#include "season/Qualification.h"
#include "settings/Texts.h"
#include "storage/DelimitedText.h"

#include <optional>
#include <string>

namespace hooptab {

// Games, teams, players and lines in totals, players per game and per minute, and files that were not read.
[[nodiscard]] std::string seasonText(const SeasonStatistics& statistics, std::optional<SeasonId> team,
                                     const Qualification& minimum, const Texts& texts);
// Players and lines in each of the views, all columns; the last one is 1 for rows under the minimum.
[[nodiscard]] std::string seasonCsv(const SeasonStatistics& statistics, const Qualification& minimum,
                                    const Texts& texts, CsvReader reader);

} // namespace hooptab
