// The columns of the season tables in words, for tool tips and for choosing a statistic.
#pragma once

#include "season/SeasonColumns.h"
#include "storage/Settings.h"

#include <string>

namespace hooptab {

// `column` is a creation index, 1..55.
[[nodiscard]] std::string seasonColumnWords(int column, const Settings& settings, const Texts& texts);

} // namespace hooptab
