// The columns of the box score in words, for tool tips: the short headers say little to whoever sees them
// first, and eight of them read "PTS".
#pragma once

#include "settings/Settings.h"

#include <string>

namespace hooptab {

// `column` is a creation index, 1..48. The two statistics of the user's own carry the game's labels, or where
// those are empty the settings'.
[[nodiscard]] std::string columnWords(int column, const std::string (&gameLabels)[2],
                                      const Settings& settings, const Texts& texts);

} // namespace hooptab
