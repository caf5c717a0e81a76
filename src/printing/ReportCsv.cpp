#include "printing/ReportText.h"
#include "storage/DelimitedText.h"
#include "storage/Module1.h"

#include <algorithm>

namespace hooptab {

namespace {

constexpr std::string_view kTitleColumn = "Table";

std::string rowOf(const ReportTable& table, const ReportRow& row, bool hasTitle) {
  std::vector<std::string> fields;
  if (hasTitle)
    fields.push_back(table.title);
  for (const ReportCell& cell : row.cells)
    fields.push_back(cell.text);
  return csvRow(fields);
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
  std::string bytes = csvRow(header);
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
