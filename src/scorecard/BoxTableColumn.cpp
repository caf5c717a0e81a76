#include "scorecard/BoxTableColumn.h"

#include "appearance/relabel.h"
#include "scorecard/LeagueSheet.h"

namespace hooptab {

namespace {

// Groups of four columns alternate, so that their equal "PTS" headers stay apart.
bool isShaded(int index) {
  int groups = 0;
  const ShotGroup* open = nullptr;
  for (const int each : boxDisplayOrder()) {
    const Statistic* statistic = boxColumn(each).statistic;
    const ShotGroup* group = statistic == nullptr ? nullptr : statistic->group;
    groups += group != open ? 1 : 0;
    open = group;
    if (each == index)
      break;
  }
  return groups % 2 == 1;
}

BoxTableColumn columnOf(const BoxColumn& column) {
  const int index = column.index;
  const Statistic* statistic = column.statistic;
  BoxTableColumn shown{.name = toQt(column.name),
                       .isText = boxColumnIsText(index),
                       .isLeftAligned = column.isLeftAligned,
                       .isHidden = column.widthTwips == 0,
                       .isMadeOrAttempted = column.isMadeOrAttempted,
                       .isShaded = isShaded(index),
                       .text = [index](const BoxRow& row) { return toQt(boxCell(row, index)); },
                       .sortValue = [index](const BoxRow& row) { return boxSortValue(row, index); }};
  if (statistic != nullptr) {
    shown.kind = statistic->kind;
    shown.isBold = statistic->isShotPart(ShotPart::Points) && statistic->isOfAllShots();
  }
  return shown;
}

} // namespace

std::vector<BoxTableColumn> boxTableColumns() {
  std::vector<BoxTableColumn> columns;
  for (const BoxColumn& column : boxColumns())
    columns.push_back(columnOf(column));
  return columns;
}

std::vector<BoxTableColumn> leagueTableColumns() {
  // Number and name are those of every box score.
  std::vector<BoxTableColumn> columns = {columnOf(boxColumns()[0]), columnOf(boxColumns()[1])};
  ShotKinds open = 0;
  bool isShaded = false;
  for (const LeagueColumn& column : leagueColumns()) {
    isShaded = column.shots != 0 && (column.shots == open ? isShaded : !isShaded);
    open = column.shots;
    columns.push_back({.name = toQt(column.name),
                       .kind = column.kind,
                       .isMadeOrAttempted = column.shots != 0 && column.part != ShotPart::Percent,
                       .isShaded = isShaded,
                       .isBold = column.name == "PTS",
                       .text = [&column](const BoxRow& row) { return toQt(leagueCell(row, column)); },
                       .sortValue = [&column](const BoxRow& row) { return sortValue(column.value(row)); }});
  }
  return columns;
}

} // namespace hooptab
