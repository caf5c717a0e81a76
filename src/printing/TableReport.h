// A table as a window shows it, as a report: numbers, percentages and times are told from texts, so that a
// spreadsheet calculates with them.
#pragma once

#include "appearance/TableContent.h"
#include "report/Report.h"

namespace hooptab {

// A column is one of numbers where all that it says are numbers and none of them a name: a column of texts at
// the left is not, nor one with a jersey 00. The exact number that the table sorts by stands behind a cell
// where it is the one shown.
[[nodiscard]] ReportTable tableOf(const TableContent& content);

// `about` is what the window shows, as its title says.
[[nodiscard]] Report tableReport(const TableContent& content, const QString& about);

} // namespace hooptab
