#include "printing/TableReport.h"

#include "appearance/relabel.h"
#include "storage/Module1.h"

#include <QRegularExpression>

#include <algorithm>
#include <cmath>
#include <optional>
#include <set>

namespace hooptab {

namespace {

using Kind = ReportCell::Kind;

constexpr double kHalfPercentStep = 0.0005; // a percentage is shown with one decimal

// What stands where there is no number.
bool isBlank(const QString& text) {
  return text.isEmpty() || text == u"-" || text == u"–" || text == u"—";
}

double rounding(const QString& number) {
  const qsizetype point = number.indexOf(u'.');
  return point < 0 ? 0 : 0.5 * std::pow(10, -static_cast<double>(number.size() - point - 1));
}

// The exact number where it is what is shown. A whole number that is another one behind its text is a name in
// the order of numbers: a jersey.
std::optional<ReportCell> numberOf(const TableContent::Cell& cell) {
  static const QRegularExpression kNumber(QStringLiteral("^[+-]?(0|[1-9][0-9]*)(\\.[0-9]+)?(%?)$"));
  static const QRegularExpression kTime(QStringLiteral("^([0-9]{2,}):([0-5][0-9])$"));
  constexpr double kExact = 1e-9;
  ReportCell number = textCell(fromQt(cell.text));
  double tolerance = kExact;
  if (const auto time = kTime.match(cell.text); time.hasMatch()) {
    number.kind = Kind::Time;
    number.value = time.captured(1).toDouble() * 60 + time.captured(2).toDouble();
    tolerance += 0.5;
  } else if (const auto match = kNumber.match(cell.text); match.hasMatch()) {
    const bool isPercent = !match.captured(3).isEmpty();
    const QString digits = isPercent ? cell.text.chopped(1) : cell.text;
    number.kind = isPercent ? Kind::Percent : Kind::Number;
    number.value = digits.toDouble() / (isPercent ? 100 : 1);
    tolerance += isPercent ? kHalfPercentStep : rounding(digits);
    if (number.kind == Kind::Number && rounding(digits) == 0 && cell.value &&
        std::abs(*cell.value - number.value) > kExact)
      return std::nullopt;
  } else {
    return std::nullopt;
  }
  if (cell.value && std::abs(*cell.value - number.value) <= tolerance)
    number.value = *cell.value;
  return number;
}

bool isOfNumbers(const TableContent& content, std::size_t column) {
  if (content.columns[column].isLeftAligned)
    return false;
  return std::ranges::all_of(content.rows, [column](const TableContent::Row& row) {
    return isBlank(row.cells[column].text) || numberOf(row.cells[column]);
  });
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
  std::vector<bool> ofNumbers;
  std::set<std::string> names;
  bool isRepeated = true; // up to the name, which stays in sight
  for (std::size_t i = 0; i < content.columns.size(); ++i) {
    const TableContent::Column& column = content.columns[i];
    ofNumbers.push_back(isOfNumbers(content, i));
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
    for (std::size_t i = 0; i < row.cells.size(); ++i) {
      const auto number = ofNumbers[i] ? numberOf(row.cells[i]) : std::nullopt;
      line.cells.push_back(number.value_or(textCell(fromQt(row.cells[i].text))));
    }
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
