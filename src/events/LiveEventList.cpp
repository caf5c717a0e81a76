#include "events/LiveEventList.h"

#include "appearance/Theme.h"
#include "events/LiveEventDelegate.h"
#include "events/LiveEventRows.h"

#include <QHeaderView>
#include <QMouseEvent>

namespace hooptab {

LiveEventList::LiveEventList(const QString& name, QAbstractItemModel& rows, QWidget* parent)
    : QTableView(parent) {
  setObjectName(name);
  setModel(&rows);
  setItemDelegateForColumn(EventListModel::Action, new LiveEventDelegate(this));
  setFrameShape(QFrame::NoFrame);
  hideColumn(EventListModel::Clock); // drawn with the words
  hideColumn(EventListModel::Period);
  hideColumn(EventListModel::Score);
  horizontalHeader()->hide();
  horizontalHeader()->setSectionResizeMode(EventListModel::Action, QHeaderView::Stretch);
  verticalHeader()->hide();
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  setSelectionBehavior(QAbstractItemView::SelectRows);
  setSelectionMode(QAbstractItemView::ExtendedSelection);
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn); // words keep their width when the list grows
  setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
  setShowGrid(false);
  setWordWrap(false);
  setTabKeyNavigation(false);
  setContextMenuPolicy(Qt::ActionsContextMenu);
}

void LiveEventList::applyColours() {
  const int rowHeight = Theme::measure()(23, 30);
  verticalHeader()->setMinimumSectionSize(rowHeight);
  verticalHeader()->setDefaultSectionSize(rowHeight);
  viewport()->update();
}

void LiveEventList::showAtTop(const QModelIndex& row) {
  updateGeometries(); // or it could be scrolled no further than before
  scrollTo(row, PositionAtTop);
}

QPoint LiveEventList::cornerUnder(const QModelIndex& row) const {
  return viewport()->mapToGlobal(visualRect(row).bottomLeft());
}

void LiveEventList::mouseDoubleClickEvent(QMouseEvent* event) {
  const QModelIndex row = indexAt(event->position().toPoint());
  if (event->button() == Qt::LeftButton && row.isValid() && m_doubleClick && m_doubleClick(row))
    return;
  QTableView::mouseDoubleClickEvent(event);
}

void LiveEventList::mouseReleaseEvent(QMouseEvent* event) {
  QTableView::mouseReleaseEvent(event);
  const QPoint place = event->position().toPoint();
  const QModelIndex row = indexAt(place);
  if (event->button() == Qt::LeftButton && row.column() == EventListModel::Action &&
      row.data(LiveEventRows::HasFinding).toBool() &&
      LiveEventDelegate::chipOf(visualRect(row)).contains(place))
    emit chipClicked(row);
}

} // namespace hooptab
