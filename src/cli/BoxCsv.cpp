#include "cli/CsvField.h"
#include "cli/Reports.h"
#include "scorecard/BoxScore.h"

namespace hooptab {

std::string boxCsv(const Scorecard& card, const Texts& texts) {
  std::string csv = "team";
  for (const int column : boxDisplayOrder())
    csv += ',' + csvField(boxColumns()[static_cast<std::size_t>(column - 1)].name);
  csv += "\r\n";
  for (int team = 0; team < 2; ++team) {
    for (const BoxRow& row : boxRows(card.game(), card.state(), team, BoxView::Players, texts)) {
      csv += csvField(card.game().details.abbreviation[team]);
      for (const int column : boxDisplayOrder())
        csv += ',' + csvField(boxCell(row, column));
      csv += "\r\n";
    }
  }
  return csv;
}

} // namespace hooptab
