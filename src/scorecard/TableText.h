// A table as text for the clipboard: the columns that are shown, in the order in which they are shown,
// separated by tabs, so that a spreadsheet takes it as it is.
#pragma once

#include <QString>

class QTableView;

namespace hooptab {

// With its headers; the selected rows where there are several, else all.
[[nodiscard]] QString tableText(const QTableView& view);
void copyTable(const QTableView& view);

} // namespace hooptab
