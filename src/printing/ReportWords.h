// Words that several kinds of reports are made of. Knows no game and no season.
#pragma once

#include "printing/Report.h"
#include "storage/Texts.h"

#include <string>
#include <string_view>

namespace hooptab {

// "Date: 2026-03-01", with the blanks of the language, and without the dots of a label that asks for
// something.
[[nodiscard]] std::string labelled(std::string_view label, std::string_view value, const Texts& texts);
[[nodiscard]] std::string labelled(int labelText, std::string_view value, const Texts& texts);
// With a large first letter, for the begin of a row or a heading.
[[nodiscard]] std::string capitalised(std::string words);
// Below tables of counts: what the codes of their columns mean, and which groups are left out on paper, since
// nobody tried such a shot.
void addNotes(Report& report, const ReportTable& table, const Texts& texts);

} // namespace hooptab
