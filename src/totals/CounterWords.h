// What a column of a table of totals counts, in words: "Free Throws: made", or the label of a statistic of
// one's own.
#pragma once

#include "game/GameDetails.h"
#include "settings/Settings.h"
#include "settings/Texts.h"
#include "totals/ManualColumns.h"

#include <string>

namespace hooptab {

[[nodiscard]] std::string counterWords(const ManualColumn& column, const GameDetails& game,
                                       const Settings& settings, const Texts& texts);

} // namespace hooptab
