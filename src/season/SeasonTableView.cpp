#include "season/SeasonTableView.h"

#include "appearance/Theme.h"
#include "scorecard/BoxHeader.h"

#include <QShortcut>
#include <algorithm>
#include <vector>

namespace hooptab {

namespace {

constexpr int kRowHeight = 22;
constexpr int kPadding = 12;
constexpr int kWidestText = 300;
constexpr int kMeasuredRows = 200; // of a long table: the others are seldom wider

} // namespace

SeasonTableView::SeasonTableView(const QString& name, int frozenColumns, QWidget* parent)
    : FrozenTableView(frozenColumns, parent), m_narrowRow(kRowHeight), m_wideRow(kRowHeight) {
  setObjectName(name);
  setModel(&m_model);
  setRowHeight(Theme::measure()(kRowHeight));
  setTabKeyNavigation(false);
  connect(this, &QAbstractItemView::doubleClicked, this,
          [this](const QModelIndex& index) { emit rowAsked(m_model.sourceRow(index.row())); });
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
    auto* enter = new QShortcut(QKeySequence(key), this, nullptr, nullptr, Qt::WidgetShortcut);
    connect(enter, &QShortcut::activated, this, [this] {
      if (currentRow() >= 0)
        emit rowAsked(currentRow());
    });
  }
  connect(selectionModel(), &QItemSelectionModel::currentRowChanged, this,
          [this] { emit currentRowChanged(currentRow()); });
  connect(horizontalHeader(), &QHeaderView::sectionResized, this,
          [this] { m_hasOwnWidths = m_hasOwnWidths || !m_isFitting; });
}

int SeasonTableView::currentRow() const {
  return currentIndex().isValid() ? m_model.sourceRow(currentIndex().row()) : -1;
}

std::vector<int> SeasonTableView::chosenRows() const {
  std::vector<int> rows;
  const QModelIndexList selected = selectionModel()->selectedRows();
  if (selected.size() >= 2) {
    for (const QModelIndex& index : selected)
      rows.push_back(m_model.sourceRow(index.row()));
  } else {
    for (int row = 0; row < m_model.rowCount(); ++row)
      rows.push_back(m_model.sourceRow(row));
  }
  std::ranges::sort(rows);
  return rows;
}

void SeasonTableView::showColumns(std::vector<TableColumn> columns) {
  m_model.showColumns(std::move(columns));
  fitColumns();
}

void SeasonTableView::showRows(TableRows rows) {
  m_model.showRows(std::move(rows));
  fitColumns();
}

void SeasonTableView::focusInEvent(QFocusEvent* event) {
  FrozenTableView::focusInEvent(event);
  emit focused();
}

void SeasonTableView::fitToFont() {
  setRowHeight(Theme::measure()(m_narrowRow, m_wideRow));
  fitColumns();
}

void SeasonTableView::setRowHeights(int narrow, int wide) {
  m_narrowRow = narrow;
  m_wideRow = wide;
  setRowHeight(Theme::measure()(narrow, wide));
}

void SeasonTableView::fillWidth() {
  m_fillsWidth = true;
  fitColumns();
}

void SeasonTableView::resizeEvent(QResizeEvent* event) {
  FrozenTableView::resizeEvent(event);
  if (m_fillsWidth)
    fitColumns();
}

void SeasonTableView::fitColumns() {
  m_isFitting = true;
  const auto* header = static_cast<const BoxHeader*>(horizontalHeader());
  QFont bold = font();
  bold.setBold(true);
  const QFontMetrics metrics(bold);
  for (int column = 0; column < m_model.columnCount(); ++column) {
    const TableColumn& shown = m_model.columns()[static_cast<std::size_t>(column)];
    setColumnHidden(column, shown.isHidden);
    if (shown.isHidden || m_hasOwnWidths)
      continue;
    int width = std::max(
        {shown.leastWidth, header->textWidth(shown.header), metrics.horizontalAdvance(shown.longest)});
    for (int row = 0; shown.longest.isEmpty() && row < std::min(m_model.rowCount(), kMeasuredRows); ++row)
      width = std::max(width, metrics.horizontalAdvance(m_model.index(row, column).data().toString()));
    setColumnWidth(
        column, std::min(width, std::max({kWidestText, shown.leastWidth, header->textWidth(shown.header)})) +
                    kPadding);
  }
  if (m_fillsWidth && !m_hasOwnWidths)
    shareRest();
  m_isFitting = false;
  layOutFrozen();
}

void SeasonTableView::shareRest() {
  std::vector<int> shown;
  int rest = viewport()->width();
  for (int column = 0; column < m_model.columnCount(); ++column) {
    if (isColumnHidden(column))
      continue;
    shown.push_back(column);
    rest -= columnWidth(column);
  }
  for (std::size_t i = 0; i < shown.size() && rest > 0; ++i) {
    const int share = rest / static_cast<int>(shown.size() - i);
    setColumnWidth(shown[i], columnWidth(shown[i]) + share);
    rest -= share;
  }
}

QByteArray SeasonTableView::widths() const {
  QByteArray text;
  if (m_hasOwnWidths) {
    for (int column = 0; column < m_model.columnCount(); ++column)
      text += QByteArray::number(columnWidth(column)) + ' ';
  }
  return text;
}

void SeasonTableView::restoreWidths(const QByteArray& widths) {
  const QList<QByteArray> numbers = widths.simplified().split(' ');
  if (numbers.size() != m_model.columnCount())
    return;
  for (int column = 0; column < m_model.columnCount(); ++column) {
    if (const int width = numbers[column].toInt(); width > 0 && !isColumnHidden(column))
      setColumnWidth(column, width);
  }
  m_hasOwnWidths = true;
}

} // namespace hooptab
