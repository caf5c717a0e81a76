#include "cli/Reports.h"
#include "scorecard/BoxScore.h"
#include "storage/DelimitedText.h"

namespace hooptab {

std::string boxCsv(const Scorecard& card, const Texts& texts) {
  std::vector<std::string> header = {"team"};
  for (const int column : boxDisplayOrder())
    header.emplace_back(boxColumns()[static_cast<std::size_t>(column - 1)].name);
  std::string csv = csvRow(header);
  for (int team = 0; team < 2; ++team) {
    for (const BoxRow& row : boxRows(card.game(), card.state(), team, BoxView::Players, texts)) {
      std::vector<std::string> cells = {card.game().details.abbreviation[team]};
      for (const int column : boxDisplayOrder())
        cells.push_back(boxCell(row, column));
      csv += csvRow(cells);
    }
  }
  return csv;
}

} // namespace hooptab
