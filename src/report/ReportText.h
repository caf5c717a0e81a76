// Reports as files of text: tables for spreadsheets, and one web page. Works in memory; what is written where
// is ReportFiles' to decide.
#pragma once

#include "report/Report.h"
#include "storage/DelimitedText.h"
#include "storage/TaskWatch.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace hooptab {

// One of the files that an export consists of. The first one stands under the name that the user chose, the
// others beside it, their suffix before the ending.
struct ReportFile {
  std::string suffix; // empty for the first
  std::string bytes;
};

// RFC 4180 with a header line. Tables of equal columns share a file, each row behind the title of its table;
// the summaries have files of their own. A text that a spreadsheet would take for a formula gets an
// apostrophe in front. For French spreadsheets the columns have the heads of the report, for others their
// names, which are the same in every language. Nothing for a report without tables.
[[nodiscard]] std::vector<ReportFile> reportCsv(const Report& report, CsvReader reader = CsvReader::Anybody);
[[nodiscard]] std::vector<std::string> csvSuffixes(const Report& report); // of those files

// A self-contained page. `png` draws a picture; its bytes stand in the page. Empty when cancelled.
using DrawPng = std::function<std::string(const ReportPicture& picture)>;
[[nodiscard]] std::string reportHtml(const Report& report, std::string_view language, const DrawPng& png,
                                     const TaskWatch& watch = {});

} // namespace hooptab
