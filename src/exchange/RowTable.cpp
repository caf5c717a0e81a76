#include "exchange/RowTable.h"

#include "appearance/TableContent.h"
#include "appearance/Theme.h"
#include "appearance/relabel.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QSortFilterProxyModel>

#include <algorithm>

namespace hooptab {

namespace {

constexpr int kPadding = 16;

} // namespace

RowTable::RowTable(const char* name, Text accessibleName, std::vector<RowColumn> columns, const Texts& texts,
                   QWidget* parent)
    : QTableView(parent), m_rows(new RowModel(std::move(columns), texts, this)),
      m_sorted(new QSortFilterProxyModel(this)) {
  setObjectName(QLatin1String(name));
  setAccessibleNumber(*this, accessibleName);
  m_sorted->setSourceModel(m_rows);
  m_sorted->setSortRole(kTableSortRole);
  m_sorted->setSortLocaleAware(true);
  setModel(m_sorted);
  setShowGrid(false);
  setWordWrap(false);
  setTabKeyNavigation(false);
  setSelectionBehavior(SelectRows);
  setSelectionMode(ExtendedSelection);
  setEditTriggers(DoubleClicked | EditKeyPressed);
  setHorizontalScrollMode(ScrollPerPixel);
  verticalHeader()->hide();
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  horizontalHeader()->setHighlightSections(false);
  const auto wide = std::ranges::find(m_rows->columns(), true, &RowColumn::isWide);
  if (wide != m_rows->columns().end())
    horizontalHeader()->setSectionResizeMode(static_cast<int>(wide - m_rows->columns().begin()),
                                             QHeaderView::Stretch);
  setSortingEnabled(true);
  sortByColumn(-1, Qt::AscendingOrder); // as the rows come
  fitToFont();
  connect(this, &QAbstractItemView::doubleClicked, this, [this](const QModelIndex& index) {
    if (!index.flags().testFlag(Qt::ItemIsEditable))
      emit rowAsked(m_sorted->mapToSource(index).row());
  });
}

void RowTable::fitToFont() {
  if (m_measure == Theme::measure())
    return;
  m_measure = Theme::measure();
  verticalHeader()->setMinimumSectionSize(Theme::measure()(24, 30));
  verticalHeader()->setDefaultSectionSize(Theme::measure()(24, 30));
  int column = 0;
  for (const RowColumn& each : m_rows->columns())
    setColumnWidth(column++, each.letters * fontMetrics().averageCharWidth() + kPadding);
}

void RowTable::show(RowSource rows) {
  m_rows->show(std::move(rows));
}

void RowTable::refresh() {
  m_rows->refresh();
}

int RowTable::currentRow() const {
  return currentIndex().isValid() ? m_sorted->mapToSource(currentIndex()).row() : -1;
}

std::vector<int> RowTable::selectedRows() const {
  std::vector<int> rows;
  for (const QModelIndex& index : selectionModel()->selectedRows())
    rows.push_back(m_sorted->mapToSource(index).row());
  return rows;
}

void RowTable::selectRow(int row) {
  setCurrentIndex(m_sorted->mapFromSource(m_rows->index(row, 0)));
}

QByteArray RowTable::widths() const {
  return horizontalHeader()->saveState();
}

void RowTable::restoreWidths(const QByteArray& state) {
  horizontalHeader()->restoreState(state);
  sortByColumn(-1, Qt::AscendingOrder);
}

// All of the selected rows become what the first of them is not.
void RowTable::toggleSelected() {
  std::optional<bool> isOn;
  for (const int row : selectedRows()) {
    const QModelIndex index = m_rows->index(row, 0);
    if (!index.flags().testFlag(Qt::ItemIsUserCheckable))
      continue;
    if (!isOn)
      isOn = index.data(Qt::CheckStateRole).toInt() != Qt::Checked;
    m_rows->setData(index, *isOn ? Qt::Checked : Qt::Unchecked, Qt::CheckStateRole);
  }
}

void RowTable::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Space)
    return toggleSelected();
  const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (isEnter && state() != EditingState && currentRow() >= 0)
    emit rowAsked(currentRow());
  else
    QTableView::keyPressEvent(event);
}

void RowTable::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
  QTableView::currentChanged(current, previous);
  emit currentRowChanged(currentRow());
}

} // namespace hooptab
