#include "cli/Reports.h"
#include "scorecard/BoxScore.h"

namespace hooptab {

std::string boxCsv(const Scorecard& card, const Texts& texts, CsvReader reader) {
  const bool isFrench = reader == CsvReader::French;
  std::vector<std::string> header = {isFrench ? std::string(texts.text(Text::Team)) : "team"};
  for (const int index : boxDisplayOrder()) {
    const BoxColumn& column = boxColumns()[static_cast<std::size_t>(index - 1)];
    header.emplace_back(isFrench && column.headerText != Text::None ? texts.text(column.headerText)
                                                                    : column.name);
  }
  std::string csv(isFrench ? kByteOrderMark : std::string_view());
  csv += csvRow(header, reader);
  for (const Side team : kSides) {
    for (const BoxRow& row : boxRows(*card.counted(), team, BoxView::Players, texts)) {
      std::vector<std::string> cells = {card.game().details.abbreviation[team]};
      for (const int column : boxDisplayOrder())
        cells.push_back(boxCell(row, column));
      csv += csvRow(cells, reader);
    }
  }
  return csv;
}

} // namespace hooptab
