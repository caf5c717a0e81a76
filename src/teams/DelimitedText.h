// Rows of fields in a text, as spreadsheets write them: comma, semicolon or tab between the fields, fields in
// quotes (RFC 4180), any kind of line end. Knows nothing of what the fields mean.
#pragma once

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

// One row, with CR LF; fields with separators, quotes or line breaks in quotes.
[[nodiscard]] std::string delimitedRow(const std::vector<std::string>& fields);

} // namespace hooptab
