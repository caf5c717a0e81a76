// A player's season on one page: averages, his games, where he shot from and how, how he played at home,
// away, in wins, in losses and lately, and how his team fared with and without him. Sums are those of the
// season's statistics.
#pragma once

#include "report/Report.h"
#include "season/SeasonRating.h"
#include "settings/Texts.h"

namespace hooptab {

// Without that player it holds no tables.
[[nodiscard]] Report playerSheet(const SeasonStatistics& statistics, SeasonId player,
                                 const SeasonRating& ownRating, const Texts& texts);

// What a report has of a rating of the user's own; a text where it gives no number.
[[nodiscard]] ReportCell ownRatingCell(const SeasonRating& ownRating, const SeasonRow& row, SeasonView view);

} // namespace hooptab
