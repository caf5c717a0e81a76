#include "setup/SidePlayersTable.h"

#include "appearance/Theme.h"
#include "setup/SidePlayersDelegate.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>

#include <algorithm>

namespace hooptab {

namespace {

constexpr int kFewestRows = 6; // that a small screen leaves

int lowestRow() {
  return Theme::measure()(20, 29);
}
int highestRow() {
  return Theme::measure()(24, 30);
}

} // namespace

SidePlayersTable::SidePlayersTable(SidePlayersModel& model, const QString& name, QWidget* parent)
    : QTableView(parent), m_model(model) {
  setObjectName(name);
  setModel(&model);
  setItemDelegate(new SidePlayersDelegate(this));
  setColumnHidden(SidePlayersModel::PositionIndex, true);
  horizontalHeader()->moveSection(SidePlayersModel::Name, SidePlayersModel::Position); // the name is first
  horizontalHeader()->hide();
  horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  horizontalHeader()->setSectionResizeMode(SidePlayersModel::Name, QHeaderView::Stretch);
  verticalHeader()->hide();
  verticalHeader()->setMinimumSectionSize(lowestRow());
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  setSelectionBehavior(SelectRows);
  setSelectionMode(SingleSelection);
  setEditTriggers(NoEditTriggers);
  setShowGrid(false);
  setWordWrap(false);
  setTabKeyNavigation(false);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setMinimumHeight(kFewestRows * lowestRow());
  fitRows();
}

// For the widest that can stand there, so that nothing moves.
void SidePlayersTable::fitColumns() {
  const Measure& measure = Theme::measure();
  setColumnWidth(SidePlayersModel::Number, measure(72, 88));
  setColumnWidth(SidePlayersModel::Position,
                 std::max(sizeHintForColumn(SidePlayersModel::Position), measure(84, 104)));
}

QSize SidePlayersTable::sizeHint() const {
  return {QTableView::sizeHint().width(), kMostPlayers * lowestRow() + 2 * frameWidth()};
}

// Where there is more room than fifteen players need, they take some of it.
void SidePlayersTable::fitRows() {
  verticalHeader()->setDefaultSectionSize(
      std::clamp(viewport()->height() / kMostPlayers, lowestRow(), highestRow()));
}

void SidePlayersTable::resizeEvent(QResizeEvent* event) {
  QTableView::resizeEvent(event);
  fitRows();
}

void SidePlayersTable::keyPressEvent(QKeyEvent* event) {
  const int row = currentIndex().row();
  switch (event->key()) {
  case Qt::Key_Return:
  case Qt::Key_Enter: event->accept(); return;
  case Qt::Key_Space:
    if (row >= 0)
      m_model.toggle(row);
    return;
  case Qt::Key_F2:
    if (row >= 0)
      m_model.stepPosition(row);
    return;
  default: QTableView::keyPressEvent(event);
  }
}

bool SidePlayersTable::isOnCheckMark(const QPoint& place) const {
  const QModelIndex index = indexAt(place);
  if (!index.flags().testFlag(Qt::ItemIsUserCheckable))
    return false;
  QStyleOptionViewItem option;
  initViewItemOption(&option);
  option.rect = visualRect(index);
  option.features |= QStyleOptionViewItem::HasCheckIndicator;
  return style()->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &option, this).contains(place);
}

// Two quick clicks on a check mark are two clicks.
void SidePlayersTable::mouseDoubleClickEvent(QMouseEvent* event) {
  QTableView::mouseDoubleClickEvent(event);
  const QPoint place = event->position().toPoint();
  if (event->button() == Qt::LeftButton && indexAt(place).isValid() && !isOnCheckMark(place))
    m_model.stepPosition(indexAt(place).row());
}

} // namespace hooptab
