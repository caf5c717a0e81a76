#include "printing/ReportText.h"
#include "storage/Module1.h"
#include "teams/DelimitedText.h"

#include <algorithm>

namespace hooptab {

namespace {

constexpr std::string_view kTitleColumn = "Table";

// Spreadsheets run what begins with one of these; a name never is a formula. A number with its sign, as in a
// list of margins, is none either.
std::string asText(const std::string& text) {
  constexpr std::string_view kBeginsFormula = "=+-@\t\r";
  constexpr std::string_view kOfNumbers = "0123456789.%";
  const bool isNumber = text.size() > 1 && text.find_first_not_of(kOfNumbers, 1) == std::string::npos &&
                        (text[0] == '+' || text[0] == '-');
  return !isNumber && !text.empty() && kBeginsFormula.find(text.front()) != std::string_view::npos
             ? "'" + text
             : text;
}

std::string rowOf(const ReportTable& table, const ReportRow& row, bool hasTitle) {
  std::vector<std::string> fields;
  if (hasTitle)
    fields.push_back(asText(table.title));
  for (const ReportCell& cell : row.cells)
    fields.push_back(cell.kind == ReportCell::Kind::Text ? asText(cell.text) : cell.text);
  return delimitedRow(fields);
}

bool haveEqualColumns(const ReportTable& one, const ReportTable& other) {
  return one.isSummary == other.isSummary &&
         std::ranges::equal(one.columns, other.columns, {}, &ReportColumn::name, &ReportColumn::name);
}

std::string bytesOf(const std::vector<const ReportTable*>& tables) {
  const bool hasTitle = tables.size() > 1;
  std::vector<std::string> header;
  if (hasTitle)
    header.emplace_back(kTitleColumn);
  for (const ReportColumn& column : tables.front()->columns)
    header.push_back(column.name);
  std::string bytes = delimitedRow(header);
  for (const ReportTable* table : tables) {
    for (const ReportRow& row : table->rows)
      bytes += rowOf(*table, row, hasTitle);
  }
  return bytes;
}

// Tables of equal columns together; the summaries last.
std::vector<std::vector<const ReportTable*>> groupsOf(const Report& report) {
  std::vector<std::vector<const ReportTable*>> groups;
  for (const ReportBlock& block : report.blocks) {
    const auto* table = std::get_if<ReportTable>(&block);
    if (table == nullptr)
      continue;
    const auto group = std::ranges::find_if(
        groups, [&](const auto& tables) { return haveEqualColumns(*tables.front(), *table); });
    if (group == groups.end())
      groups.push_back({table});
    else
      group->push_back(table);
  }
  std::ranges::stable_partition(groups, [](const auto& tables) { return !tables.front()->isSummary; });
  return groups;
}

std::string suffixOf(const std::vector<const ReportTable*>& group, bool isFirst) {
  return isFirst ? std::string() : Module1::asFileName(" " + group.front()->title);
}

} // namespace

std::vector<ReportFile> reportCsv(const Report& report) {
  std::vector<ReportFile> files;
  for (const auto& group : groupsOf(report))
    files.push_back({suffixOf(group, files.empty()), bytesOf(group)});
  return files;
}

std::vector<std::string> csvSuffixes(const Report& report) {
  std::vector<std::string> suffixes;
  for (const auto& group : groupsOf(report))
    suffixes.push_back(suffixOf(group, suffixes.empty()));
  return suffixes;
}

} // namespace hooptab
