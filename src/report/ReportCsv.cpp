#include "report/ReportText.h"
#include "settings/Texts.h"
#include "storage/DelimitedText.h"
#include "storage/Module1.h"

#include <algorithm>

namespace hooptab {

namespace {

std::string titleColumn(CsvReader reader) {
  return std::string(
      Texts().text(Text::Table, reader == CsvReader::French ? Language::French : Language::English));
}

// Where several columns have one head, their names tell them apart.
std::string headOf(const ReportTable& table, const ReportColumn& column, CsvReader reader) {
  const bool isUnique =
      !column.header.empty() && std::ranges::count(table.columns, column.header, &ReportColumn::header) == 1;
  return reader == CsvReader::French && isUnique ? column.header : column.name;
}

std::string rowOf(const ReportTable& table, const ReportRow& row, bool hasTitle, CsvReader reader) {
  std::vector<std::string> fields;
  if (hasTitle)
    fields.push_back(table.title);
  for (const ReportCell& cell : row.cells)
    fields.push_back(cell.text);
  return csvRow(fields, reader);
}

bool haveEqualColumns(const ReportTable& one, const ReportTable& other) {
  return one.isSummary == other.isSummary &&
         std::ranges::equal(one.columns, other.columns, {}, &ReportColumn::name, &ReportColumn::name);
}

std::string bytesOf(const std::vector<const ReportTable*>& tables, CsvReader reader) {
  const bool hasTitle = tables.size() > 1;
  std::vector<std::string> header;
  if (hasTitle)
    header.push_back(titleColumn(reader));
  for (const ReportColumn& column : tables.front()->columns)
    header.push_back(headOf(*tables.front(), column, reader));
  std::string bytes(reader == CsvReader::French ? kByteOrderMark : std::string_view());
  bytes += csvRow(header, reader);
  for (const ReportTable* table : tables) {
    for (const ReportRow& row : table->rows)
      bytes += rowOf(*table, row, hasTitle, reader);
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

std::vector<ReportFile> reportCsv(const Report& report, CsvReader reader) {
  std::vector<ReportFile> files;
  for (const auto& group : groupsOf(report))
    files.push_back({suffixOf(group, files.empty()), bytesOf(group, reader)});
  return files;
}

std::vector<std::string> csvSuffixes(const Report& report) {
  std::vector<std::string> suffixes;
  for (const auto& group : groupsOf(report))
    suffixes.push_back(suffixOf(group, suffixes.empty()));
  return suffixes;
}

} // namespace hooptab
