// How a period is named, the same in every window, report and list.
#pragma once

#include "settings/Texts.h"

#include <string>

namespace hooptab {

// "3"; behind the regular periods "OT1", "OT2". A game without regular periods has no overtime.
[[nodiscard]] std::string periodName(int period, int regularPeriods, const Texts& texts);

} // namespace hooptab
