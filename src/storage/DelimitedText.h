// Rows of fields in a text, as spreadsheets write them: comma, semicolon or tab between the fields, fields in
// quotes (RFC 4180), any kind of line end. Every table that the program writes for spreadsheets goes through
// here. Knows nothing of what the fields mean.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace hooptab {

struct DelimitedRow {
  int line = 0; // of the text, from 1, where the row begins
  std::vector<std::string>
      fields;                // blanks around them dropped; line breaks and control characters are blanks
  bool hasOpenQuote = false; // a quote that is never closed: the rest of its line is the field
};

// All rows but empty ones. The separator is that of the first line with text: a tab before a semicolon before
// a comma. A byte order mark is passed over.
[[nodiscard]] std::vector<DelimitedRow> parseDelimited(std::string_view text);

// One row, with CR LF; cells with separators, quotes or line breaks in quotes. A cell that a spreadsheet
// would run as a formula gets an apostrophe in front, a number with its sign does not. Control characters but
// tabs and line breaks are left out.
//
// Spreadsheets of a French-speaking system take ";" between cells and a decimal comma: numbers with a point
// get one. Such a file begins with kByteOrderMark.
enum class CsvReader : std::uint8_t { Anybody, French };
inline constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
[[nodiscard]] std::string csvRow(const std::vector<std::string>& cells,
                                 CsvReader reader = CsvReader::Anybody);
// What a cell of such a row held: without the apostrophe that it was given, which no other cell loses.
[[nodiscard]] std::string_view heldByCell(std::string_view cell);

} // namespace hooptab
