#include "scorecard/BoxTable.h"

#include "appearance/Theme.h"
#include "appearance/relabel.h"
#include "scorecard/BoxHeader.h"

#include <QHeaderView>
#include <QStyle>
#include <algorithm>

namespace hooptab {

namespace {

constexpr int kFrozenColumns = 2; // number and name
constexpr int kNameColumn = 1;
constexpr int kLowestRow = 21;
constexpr int kHighestRow = 28;
constexpr int kPadding = 8; // left and right of a text together
constexpr int kWidestName = 190;
constexpr int kWidestNameWhenWide = 220;

// The longest text that a game leaves in a column of numbers.
QString longestText(ValueKind kind) {
  switch (kind) {
  case ValueKind::Time: return QStringLiteral("000:00");
  case ValueKind::Percent: return QStringLiteral("100.0%");
  case ValueKind::Count: break;
  }
  return QStringLiteral("000");
}

} // namespace

BoxTable::BoxTable(const QString& name, std::vector<BoxTableColumn> columns, QWidget* parent)
    : FrozenTableView(kFrozenColumns, parent), m_model(std::move(columns)) {
  setObjectName(name);
  m_sorted.setSourceModel(&m_model);
  setModel(&m_sorted);
  fitRows();
  hideMadeAttempted(false);
  connect(&m_model, &BoxScoreModel::checkAsked, this,
          [this](int row, bool isChecked) { emit checkAsked(m_model.row(row), isChecked); });
}

void BoxTable::setOrder(const std::vector<int>& order) {
  for (int place = 0; place < m_model.columnCount(); ++place)
    horizontalHeader()->moveSection(
        horizontalHeader()->visualIndex(order[static_cast<std::size_t>(place)] - 1), place);
}

void BoxTable::showRows(std::vector<BoxScoreModel::Row> rows, bool sameTable) {
  m_model.showRows(std::move(rows), sameTable);
  if (!sameTable)
    fitColumns();
  fitRows();
  layOutFrozen();
}

void BoxTable::hideMadeAttempted(bool hides) {
  for (int column = 0; column < m_model.columnCount(); ++column) {
    const BoxTableColumn& shown = m_model.columns()[static_cast<std::size_t>(column)];
    setColumnHidden(column, shown.isHidden || (hides && shown.isMadeOrAttempted));
  }
}

void BoxTable::fitToFont() {
  fitColumns();
  fitRows();
}

void BoxTable::resizeEvent(QResizeEvent* event) {
  FrozenTableView::resizeEvent(event);
  fitRows();
}

// Where there is more room than the rows need, they take some of it.
void BoxTable::fitRows() {
  const int room = viewport()->height() / std::max(m_model.rowCount(), 1);
  const Measure& measure = Theme::measure();
  setRowHeight(std::clamp(room, measure(kLowestRow), measure(kHighestRow)));
}

void BoxTable::relabel(const QStringList& headers, const QStringList& toolTips) {
  m_model.showHeaders(headers, toolTips);
  fitColumns();
}

// Columns of numbers are as wide as they ever need, so that nothing moves when counts grow; those of texts
// fit what they hold.
void BoxTable::fitColumns() {
  const auto* header = static_cast<const BoxHeader*>(horizontalHeader());
  const int box = style()->pixelMetric(QStyle::PM_IndicatorWidth) + kPadding;
  QFont bold = font();
  bold.setBold(true); // as in the total
  const QFontMetrics metrics(bold);
  for (int column = 0; column < m_model.columnCount(); ++column) {
    int width = header->textWidth(m_model.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString());
    const auto kind = m_model.columns()[static_cast<std::size_t>(column)].kind;
    if (kind)
      width = std::max(width, metrics.horizontalAdvance(longestText(*kind)));
    for (int row = 0; !kind && row < m_model.rowCount(); ++row)
      width = std::max(width, metrics.horizontalAdvance(m_model.index(row, column).data().toString()));
    if (m_model.index(0, column).data(Qt::CheckStateRole).isValid())
      width += box;
    if (column == kNameColumn)
      width = std::min(width, Theme::measure()(kWidestName, kWidestNameWhenWide));
    setColumnWidth(column, width + kPadding);
  }
}

} // namespace hooptab
