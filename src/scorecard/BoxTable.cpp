#include "scorecard/BoxTable.h"

#include "appearance/relabel.h"
#include "scorecard/BoxHeader.h"

#include <QHeaderView>
#include <QStyle>
#include <algorithm>

namespace hooptab {

namespace {

constexpr int kFrozenColumns = 2; // number and name
constexpr int kLowestRow = 21;
constexpr int kHighestRow = 28;
constexpr int kPadding = 8; // left and right of a text together
constexpr int kWidestName = 190;

Qt::CheckState checkState(ScorecardView::CheckMark mark) {
  switch (mark) {
  case ScorecardView::CheckMark::None: return Qt::Unchecked;
  case ScorecardView::CheckMark::Some: return Qt::PartiallyChecked;
  case ScorecardView::CheckMark::All: break;
  }
  return Qt::Checked;
}

// The longest text that a game leaves in a column of numbers.
QString longestText(const Statistic* statistic) {
  if (statistic != nullptr && statistic->kind == ValueKind::Time)
    return QStringLiteral("000:00");
  if (statistic != nullptr && statistic->kind == ValueKind::Percent)
    return QStringLiteral("100.0%");
  return QStringLiteral("000");
}

} // namespace

BoxTable::BoxTable(const QString& name, QWidget* parent) : FrozenTableView(kFrozenColumns, parent) {
  setObjectName(name);
  m_sorted.setSourceModel(&m_model);
  setModel(&m_sorted);
  setRowHeight(kLowestRow);
  const auto& order = boxDisplayOrder();
  for (int place = 0; place < boxColumnCount(); ++place)
    horizontalHeader()->moveSection(
        horizontalHeader()->visualIndex(order[static_cast<std::size_t>(place)] - 1), place);
  connect(&m_model, &BoxScoreModel::checkAsked, this,
          [this](int row, bool isChecked) { emit checkAsked(m_model.row(row), isChecked); });
}

void BoxTable::showRows(const ScorecardView& view, bool sameTable) {
  std::vector<BoxScoreModel::Row> rows;
  rows.reserve(view.rows().size());
  for (const BoxRow& row : view.rows())
    rows.push_back({row, checkState(view.checkMark(row))});
  m_model.showRows(std::move(rows), sameTable);
  for (const BoxColumn& column : boxColumns())
    setColumnHidden(column.index - 1, !view.isShown(column));
  if (!sameTable)
    fitColumns();
  fitRows();
  layOutFrozen();
}

void BoxTable::resizeEvent(QResizeEvent* event) {
  FrozenTableView::resizeEvent(event);
  fitRows();
}

// Where there is more room than the rows need, they take some of it.
void BoxTable::fitRows() {
  const int room = viewport()->height() / std::max(m_model.rowCount(), 1);
  setRowHeight(std::clamp(room, kLowestRow, kHighestRow));
}

void BoxTable::relabel(const QStringList& headers, const QStringList& toolTips) {
  m_model.showHeaders(headers, toolTips);
  fitColumns();
}

int BoxTable::numberWidth(int column) const {
  QFont bold = font();
  bold.setBold(true); // as in the total
  return QFontMetrics(bold).horizontalAdvance(longestText(boxColumn(column + 1).statistic));
}

// Columns of numbers are as wide as they ever need, so that nothing moves when counts grow; those of texts
// fit what they hold.
void BoxTable::fitColumns() {
  const auto* header = static_cast<const BoxHeader*>(horizontalHeader());
  const int box = style()->pixelMetric(QStyle::PM_IndicatorWidth) + kPadding;
  for (int column = 0; column < boxColumnCount(); ++column) {
    int width = header->textWidth(m_model.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString());
    if (boxColumnIsText(column + 1) || column < kFrozenColumns) {
      QFont bold = font();
      bold.setBold(true);
      const QFontMetrics metrics(bold);
      for (int row = 0; row < m_model.rowCount(); ++row)
        width = std::max(width, metrics.horizontalAdvance(m_model.index(row, column).data().toString()));
      if (column == 0)
        width += box;
      if (column == 1)
        width = std::min(width, kWidestName);
    } else {
      width = std::max(width, numberWidth(column));
    }
    setColumnWidth(column, width + kPadding);
  }
}

} // namespace hooptab
