// Makes a report without any window, as the command line asks for it: `hooptab --report KIND ... -o FILE
// GAME`. Says on the standard error what went wrong.
#pragma once

#include "shell/Arguments.h"

namespace hooptab {

// The exit status of the program: 0 when the file is written. `programFolder` holds the teams.
[[nodiscard]] int makeReport(const ReportRequest& request, const std::string& programFolder);

} // namespace hooptab
