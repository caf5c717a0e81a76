#include "scorecard/FrozenTableView.h"

#include "appearance/TableContent.h"
#include "scorecard/BoxHeader.h"

#include <QKeyEvent>
#include <QScrollBar>
#include <QSignalBlocker>

namespace hooptab {

namespace {

void prepare(QTableView& view) {
  view.setSelectionBehavior(QAbstractItemView::SelectRows);
  view.setSelectionMode(QAbstractItemView::ExtendedSelection);
  view.setEditTriggers(QAbstractItemView::NoEditTriggers);
  view.setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
  view.setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
  view.setShowGrid(false);
  view.setWordWrap(false);
  auto* header = new BoxHeader(&view);
  header->setSortIndicator(-1, Qt::AscendingOrder); // nothing is sorted before the user asks for it
  header->setSortIndicatorShown(true);
  header->setSortIndicatorClearable(true);
  view.setHorizontalHeader(header);
  view.verticalHeader()->hide();
  view.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
}

} // namespace

FrozenTableView::FrozenTableView(int frozenColumns, QWidget* parent)
    : QTableView(parent), m_frozenColumns(frozenColumns), m_frozen(new QTableView(this)) {
  prepare(*this);
  prepare(*m_frozen);
  setSortingEnabled(true);
  m_frozen->setObjectName(QStringLiteral("frozen"));
  m_frozen->setFrameShape(QFrame::NoFrame);
  m_frozen->setFocusProxy(this);
  m_frozen->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  m_frozen->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  m_frozen->raise(); // over this view's header as well

  connect(verticalScrollBar(), &QScrollBar::valueChanged, m_frozen->verticalScrollBar(),
          &QScrollBar::setValue);
  connect(m_frozen->verticalScrollBar(), &QScrollBar::valueChanged, verticalScrollBar(),
          &QScrollBar::setValue);
  connect(horizontalHeader(), &QHeaderView::sectionResized, this, [this](int column, int, int width) {
    m_frozen->setColumnWidth(column, width);
    layOutFrozen();
  });
  connect(m_frozen->horizontalHeader(), &QHeaderView::sectionResized, this,
          [this](int column, int, int width) {
            if (column < m_frozenColumns)
              setColumnWidth(column, width);
          });
  connect(m_frozen, &QTableView::doubleClicked, this, &QTableView::doubleClicked);
  // One sort for both headers: the hidden part of this view's header holds it.
  connect(m_frozen->horizontalHeader(), &QHeaderView::sortIndicatorChanged, horizontalHeader(),
          &QHeaderView::setSortIndicator);
  connect(horizontalHeader(), &QHeaderView::sortIndicatorChanged, this,
          [this](int column, Qt::SortOrder order) {
            const QSignalBlocker noEcho(m_frozen->horizontalHeader());
            m_frozen->horizontalHeader()->setSortIndicator(column, order);
            m_frozen->horizontalHeader()->viewport()->update();
          });
}

void FrozenTableView::setModel(QAbstractItemModel* model) {
  QTableView::setModel(model);
  m_frozen->setModel(model);
  QItemSelectionModel* spare = m_frozen->selectionModel();
  m_frozen->setSelectionModel(selectionModel());
  delete spare;
  layOutFrozen();
}

void FrozenTableView::setRowHeight(int height) {
  for (QTableView* view : {static_cast<QTableView*>(this), m_frozen}) {
    view->verticalHeader()->setMinimumSectionSize(height);
    view->verticalHeader()->setDefaultSectionSize(height);
  }
}

void FrozenTableView::clearSort() {
  horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
}

int FrozenTableView::frozenWidth() const {
  int width = 0;
  for (int column = 0; column < m_frozenColumns; ++column)
    width += columnWidth(column);
  return width;
}

void FrozenTableView::layOutFrozen() {
  if (model() == nullptr)
    return;
  for (int column = 0; column < model()->columnCount(); ++column) {
    m_frozen->setColumnHidden(column, column >= m_frozenColumns || isColumnHidden(column));
    if (column < m_frozenColumns)
      m_frozen->setColumnWidth(column, columnWidth(column));
  }
  m_frozen->horizontalHeader()->setFixedHeight(horizontalHeader()->height());
  m_frozen->setGeometry(frameWidth(), frameWidth(), frozenWidth(),
                        viewport()->height() + horizontalHeader()->height());
}

// By now the headers and the frozen part have the new font, too.
void FrozenTableView::changeEvent(QEvent* event) {
  QTableView::changeEvent(event);
  if (event->type() == QEvent::FontChange)
    fitToFont();
}

void FrozenTableView::resizeEvent(QResizeEvent* event) {
  QTableView::resizeEvent(event);
  layOutFrozen();
}

void FrozenTableView::keyPressEvent(QKeyEvent* event) {
  if (event->matches(QKeySequence::Copy)) {
    copyTable(*this);
    emit copied();
    return;
  }
  if (event->key() == Qt::Key_Space && event->modifiers() == Qt::NoModifier) {
    if (!event->isAutoRepeat())
      toggleChecks();
    return;
  }
  QTableView::keyPressEvent(event);
}

void FrozenTableView::toggleChecks() {
  const QModelIndex current = currentIndex().siblingAtColumn(0);
  if (!current.isValid())
    return;
  const bool isChecked = current.data(Qt::CheckStateRole).toInt() == Qt::Checked;
  QList<QPersistentModelIndex> rows; // a mark can change the sort
  for (const QModelIndex& row : selectionModel()->selectedRows())
    rows << row;
  if (rows.isEmpty())
    rows << current;
  for (const QPersistentModelIndex& row : rows)
    model()->setData(row, isChecked ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole);
}

QModelIndex FrozenTableView::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) {
  const QModelIndex target = QTableView::moveCursor(action, modifiers);
  // A cell that came into sight at the left edge would still lie under the frozen columns.
  const int hidden = frozenWidth() - visualRect(target).left();
  if (target.column() >= m_frozenColumns && hidden > 0)
    horizontalScrollBar()->setValue(horizontalScrollBar()->value() - hidden);
  return target;
}

void FrozenTableView::scrollTo(const QModelIndex& index, ScrollHint hint) {
  if (index.column() >= m_frozenColumns)
    QTableView::scrollTo(index, hint);
  else // always in sight sideways: only the row is to be found
    QTableView::scrollTo(index.siblingAtColumn(indexAt({frozenWidth() + 1, 1}).column()), hint);
}

} // namespace hooptab
