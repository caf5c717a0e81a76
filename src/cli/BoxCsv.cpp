#include "cli/Reports.h"
#include "scorecard/BoxScore.h"

namespace hooptab {

namespace {

std::string field(std::string_view text) {
  if (text.find_first_of(",\"\r\n") == std::string_view::npos)
    return std::string(text);
  std::string quoted = "\"";
  for (const char letter : text) {
    quoted += letter;
    if (letter == '"')
      quoted += '"';
  }
  return quoted + '"';
}

} // namespace

std::string boxCsv(const Scorecard& card, const Texts& texts) {
  std::string csv = "team";
  for (const int column : boxDisplayOrder())
    csv += ',' + field(boxColumns()[static_cast<std::size_t>(column - 1)].name);
  csv += "\r\n";
  for (int team = 0; team < 2; ++team) {
    for (const BoxRow& row : boxRows(card.game(), card.state(), team, BoxView::Players, texts)) {
      csv += field(card.game().details.abbreviation[team]);
      for (const int column : boxDisplayOrder())
        csv += ',' + field(boxCell(row, column));
      csv += "\r\n";
    }
  }
  return csv;
}

} // namespace hooptab
