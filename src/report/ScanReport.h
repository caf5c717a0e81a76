// The verification report of a scanned form: what was read from it and what the user has changed, to be laid
// beside the paper.
#pragma once

#include "forms/ScannedTotals.h"
#include "game/GameDetails.h"
#include "report/Report.h"
#include "settings/Settings.h"
#include "settings/Texts.h"

#include <string>

namespace hooptab {

// `source` names file, page and sheet.
[[nodiscard]] Report verificationReport(const ScannedTotals& scanned, const GameDetails& game,
                                        const std::string& source, const Settings& settings,
                                        const Texts& texts);

} // namespace hooptab
