#include "report/BoxReport.h"

#include "report/ReportWords.h"
#include "scorecard/ColumnWords.h"

#include <algorithm>
#include <utility>

namespace hooptab {

namespace {

constexpr std::string_view kRepeatedColumns[] = {"No", "Name"};

bool isShotPart(std::string_view name) {
  return name == "M" || name == "A" || name == "%" || name == "PTS";
}

struct Group {
  std::string_view kind; // of shots; empty for all of them together
  Text title = Text::None;
};
Group groupOf(std::string_view column) {
  if (isShotPart(column))
    return {{}, Text::EveryShot};
  for (const EventKind& kind : eventKinds()) {
    if (kind.isShot && column.starts_with(kind.shortName) && isShotPart(column.substr(kind.shortName.size())))
      return {kind.shortName, kind.wordsText};
  }
  return {};
}

int indexOf(const std::string& column) {
  return std::ranges::find(boxColumns(), column, &BoxColumn::name)->index;
}

ReportCell cellOf(const BoxRow& row, const BoxColumn& column) {
  ReportCell cell = textCell(boxCell(row, column.index));
  // Jerseys are texts: "00" is not 0.
  if (boxColumnIsText(column.index) || column.name == "No")
    return cell;
  cell.value = std::max(0.0, boxSortValue(row, column.index));
  if (column.name == "Time")
    cell.kind = ReportCell::Kind::Time;
  else if (column.name.ends_with('%'))
    cell.kind = ReportCell::Kind::Percent;
  else {
    cell.kind = ReportCell::Kind::Number;
    cell.value = boxSortValue(row, column.index); // a rating may be below 0
  }
  return cell;
}

} // namespace

ReportTable boxTable(const Game& game, const GameState& state, int team, const ScorecardView& choice,
                     const Settings& settings, const Texts& texts) {
  ReportTable table;
  table.title = game.details.abbreviation[team] + " – " + game.details.name[team];
  // Of both teams, so that their tables have the same columns.
  const BoxRow totals[2] = {boxRows(game, state, 0, BoxView::Players, texts).back(),
                            boxRows(game, state, 1, BoxView::Players, texts).back()};
  const auto isUntried = [&](const Group& group) {
    return !group.kind.empty() && std::ranges::all_of(totals, [&](const BoxRow& total) {
      return boxSortValue(total, indexOf(std::string(group.kind) + 'A')) == 0;
    });
  };
  std::vector<const BoxColumn*> shown;
  std::optional<Text> openGroup;
  for (const int index : boxDisplayOrder()) {
    const BoxColumn& column = boxColumns()[static_cast<std::size_t>(index - 1)];
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
    const Group group = groupOf(column.name);
    if (group.title != openGroup)
      table.groups.push_back({capitalised(std::string(texts.text(group.title))), 0, isUntried(group)});
    ++table.groups.back().columns;
    openGroup = group.title;
  }
  for (const BoxRow& row : boxRows(game, state, team, choice.view(), texts)) {
    ReportRow& line = table.rows.emplace_back();
    if (row.kind == BoxRowKind::Total)
      line.emphasis = ReportRow::Emphasis::Total;
    for (const BoxColumn* column : shown)
      line.cells.push_back(cellOf(row, *column));
  }
  return table;
}

} // namespace hooptab
