#include "report/BoxReport.h"

#include "report/ReportWords.h"
#include "scorecard/ColumnWords.h"

#include <algorithm>
#include <utility>

namespace hooptab {

namespace {

constexpr std::string_view kRepeatedColumns[] = {"No", "Name"};

ReportCell cellOf(const BoxRow& row, const BoxColumn& column) {
  ReportCell cell = textCell(boxCell(row, column.index));
  if (column.statistic == nullptr) // jerseys are texts: "00" is not 0
    return cell;
  const StatisticValue value = column.statistic->value(row.numbers);
  cell.kind = kindOfCell(column.statistic->kind);
  cell.value = value.denominator == 0 ? 0 : sortValue(value);
  return cell;
}

} // namespace

ReportTable boxTable(const CountedGame& counted, Side team, const ScorecardView& choice,
                     const Settings& settings, const Texts& texts) {
  const Game& game = counted.game;
  ReportTable table;
  table.title = game.details.abbreviation[team] + " – " + game.details.name[team];
  // Of both teams, so that their tables have the same columns.
  const PerSide<BoxRow> totals = {boxRows(counted, Side::Visitor, BoxView::Players, texts).back(),
                                  boxRows(counted, Side::Home, BoxView::Players, texts).back()};
  // Of one kind of shots: all of them stay where nobody tried any.
  const auto isUntried = [&](const ShotGroup* group) {
    return group != nullptr && group != shotGroups().data() &&
           std::ranges::all_of(
               totals, [&](const BoxRow& total) { return total.numbers.attempted(group->kinds) == 0; });
  };
  std::vector<const BoxColumn*> shown;
  std::optional<const ShotGroup*> openGroup;
  for (const int index : boxDisplayOrder()) {
    const BoxColumn& column = boxColumn(index);
    if (!choice.isShown(column))
      continue;
    shown.push_back(&column);
    const bool isLine = column.name == "Name" && choice.view() == BoxView::Lines;
    const std::string header(isLine                            ? texts.text(Text::Line)
                             : column.headerText != Text::None ? texts.text(column.headerText)
                                                               : column.header);
    const bool isRepeated = std::ranges::find(kRepeatedColumns, column.name) != std::end(kRepeatedColumns);
    table.columns.push_back({header, std::string(column.name),
                             columnWords(index, game.details.statisticLabel, settings, texts),
                             column.isLeftAligned || boxColumnIsText(index), isRepeated});
    const ShotGroup* group = column.statistic == nullptr ? nullptr : column.statistic->group;
    if (group != openGroup)
      table.groups.push_back(
          {group == nullptr ? std::string() : groupTitle(*group, texts), 0, isUntried(group)});
    ++table.groups.back().columns;
    openGroup = group;
  }
  for (const BoxRow& row : boxRows(counted, team, choice.view(), texts)) {
    ReportRow& line = table.rows.emplace_back();
    if (row.kind == BoxRowKind::Total)
      line.emphasis = ReportRow::Emphasis::Total;
    for (const BoxColumn* column : shown)
      line.cells.push_back(cellOf(row, *column));
  }
  return table;
}

} // namespace hooptab
