// A table as a window shows it, as a report.
#pragma once

#include "appearance/TableContent.h"
#include "report/Report.h"

namespace hooptab {

[[nodiscard]] ReportTable tableOf(const TableContent& content);

// `about` is what the window shows, as its title says.
[[nodiscard]] Report tableReport(const TableContent& content, const QString& about);

} // namespace hooptab
