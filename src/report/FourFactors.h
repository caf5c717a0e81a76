// How two teams compare: rows of a table with a value at either side of its name, the better one in bold. The
// four factors are those of the one table of rates.
#pragma once

#include "insight/CourtShare.h"
#include "report/Report.h"
#include "settings/Texts.h"

#include <string>

namespace hooptab {

// `better` is above 0 where the visitors are, below where the home team is.
[[nodiscard]] ReportRow comparedRow(PerSide<ReportCell> cells, std::string words, double better);
// A row for each: shooting, turnovers, rebounds and free throws.
void addFourFactors(ReportTable& table, const CourtShare& share, const Texts& texts);

} // namespace hooptab
