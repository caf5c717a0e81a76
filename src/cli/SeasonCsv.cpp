#include "cli/SeasonReports.h"
#include "season/SeasonColumns.h"
#include "storage/Module1.h"

#include <algorithm>
#include <cmath>

namespace hooptab {

namespace {

constexpr Text kViews[] = {Text::Totals, Text::PerGame, Text::PerMinute, Text::PerForty}; // by SeasonView

class SeasonCsv {
 public:
  SeasonCsv(const SeasonStatistics& statistics, const Qualification& minimum, const Texts& texts,
            CsvReader reader)
      : m_statistics(statistics), m_minimum(minimum), m_texts(texts), m_reader(reader) {}

  std::string text() && {
    if (m_reader == CsvReader::French)
      m_csv = kByteOrderMark;
    std::vector<std::string> header = {word("table", Text::Table), word("view", Text::View),
                                       word("team", Text::Team)};
    for (const SeasonColumn& column : seasonColumns())
      header.push_back(column.headerText == Text::None ? std::string(column.name)
                                                       : word(column.name, column.headerText));
    header.push_back(word("underMinimum", Text::UnderMinimum));
    header.emplace_back("plusMinus");
    m_csv += csvRow(header, m_reader);
    addRows(SeasonTable::Players);
    addRows(SeasonTable::Lines);
    return std::move(m_csv);
  }

 private:
  // A name that is the same in every language, but in French for French spreadsheets.
  std::string word(std::string_view name, Text french) const {
    return std::string(m_reader == CsvReader::French ? m_texts.text(french) : name);
  }
  void addRows(SeasonTable table) {
    const bool isOfLines = table == SeasonTable::Lines;
    const std::vector<int>& columns = columnsOfTable(table);
    for (const SeasonView view : kSeasonViews) {
      const std::string viewName = word(seasonViewName(view), kViews[static_cast<std::size_t>(view)]);
      for (const SeasonRow& row : isOfLines ? m_statistics.lines() : m_statistics.players()) {
        std::vector<std::string> cells = {isOfLines ? word("lines", Text::Lines)
                                                    : word("players", Text::Players),
                                          viewName, m_statistics.catalogue().teams()[row.team].key};
        for (const SeasonColumn& column : seasonColumns())
          cells.push_back(std::ranges::find(columns, column.index) == columns.end()
                              ? std::string()
                              : seasonCell(row, column.index, view, m_texts));
        cells.emplace_back(m_minimum.isUnder(row, table, view) ? "1" : "0");
        cells.push_back(plusMinus(row, view));
        m_csv += csvRow(cells, m_reader);
      }
    }
  }

  // With the minus of a number; empty where it cannot be known.
  static std::string plusMinus(const SeasonRow& row, SeasonView view) {
    const std::optional<double> value = seasonPlusMinus(row, view);
    if (!value)
      return {};
    int scale = 1;
    for (int decimal = 0; decimal < seasonDecimals(view); ++decimal)
      scale *= 10;
    return Module1::quotientText(std::lround(*value * scale), scale, seasonDecimals(view));
  }

  const SeasonStatistics& m_statistics;
  const Qualification& m_minimum;
  const Texts& m_texts;
  const CsvReader m_reader;
  std::string m_csv;
};

} // namespace

std::string seasonCsv(const SeasonStatistics& statistics, const Qualification& minimum, const Texts& texts,
                      CsvReader reader) {
  return SeasonCsv(statistics, minimum, texts, reader).text();
}

} // namespace hooptab
