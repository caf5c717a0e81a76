#include "printing/TableReport.h"

#include "appearance/relabel.h"
#include "storage/Module1.h"

#include <algorithm>
#include <set>

namespace hooptab {

namespace {

using Kind = ReportCell::Kind;

ReportCell reportCell(const TableContent::Cell& cell) {
  constexpr ReportCell::Kind kKinds[] = {Kind::Text, Kind::Number, Kind::Percent, Kind::Time}; // by TableKind
  return {fromQt(cell.text), kKinds[static_cast<std::size_t>(cell.kind)], cell.value};
}

// Every one once: " 2", " 3" behind those that come again.
std::string uniqueName(std::string name, std::set<std::string>& taken) {
  const std::string begin = name;
  for (int number = 2; !taken.insert(name).second; ++number)
    name = begin + ' ' + std::to_string(number);
  return name;
}

} // namespace

ReportTable tableOf(const TableContent& content) {
  ReportTable table;
  table.title = fromQt(content.title);
  std::set<std::string> names;
  bool isRepeated = true; // up to the name, which stays in sight
  for (std::size_t i = 0; i < content.columns.size(); ++i) {
    const TableContent::Column& column = content.columns[i];
    const auto sameHeader = std::ranges::count(content.columns, column.header, &TableContent::Column::header);
    ReportColumn& made = table.columns.emplace_back();
    made.name = uniqueName(fromQt(column.name), names);
    made.header = sameHeader > 1 ? made.name : fromQt(column.header);
    made.words = fromQt(column.words);
    made.isLeftAligned = column.isLeftAligned;
    isRepeated = isRepeated && i < 2 && column.isLeftAligned;
    made.isRepeated = isRepeated;
  }
  for (const TableContent::Row& row : content.rows) {
    ReportRow& line = table.rows.emplace_back();
    line.emphasis = row.isTotal ? ReportRow::Emphasis::Total : ReportRow::Emphasis::None;
    for (const TableContent::Cell& cell : row.cells)
      line.cells.push_back(reportCell(cell));
  }
  return table;
}

Report tableReport(const TableContent& content, const QString& about) {
  Report report;
  report.title = fromQt(content.title);
  report.subject = fromQt(about);
  report.fileName = Module1::asFileName(fromQt(QString(about + u' ' + content.title).simplified()));
  report.blocks.push_back(tableOf(content));
  return report;
}

} // namespace hooptab
