#include "setup/SidePlayersTable.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>

#include <algorithm>

namespace hooptab {

namespace {

constexpr int kLowestRow = 21;
constexpr int kHighestRow = 27;
constexpr int kFewestRows = 6; // that a small screen leaves
constexpr int kPadding = 24;

} // namespace

SidePlayersTable::SidePlayersTable(SidePlayersModel& model, const QString& name, QWidget* parent)
    : QTableView(parent), m_model(model) {
  setObjectName(name);
  setModel(&model);
  setColumnHidden(SidePlayersModel::PositionIndex, true);
  horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  horizontalHeader()->setSectionResizeMode(SidePlayersModel::Name, QHeaderView::Stretch);
  horizontalHeader()->setSectionsClickable(false);
  horizontalHeader()->setHighlightSections(false);
  horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  verticalHeader()->hide();
  verticalHeader()->setMinimumSectionSize(kLowestRow);
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  setSelectionBehavior(SelectRows);
  setSelectionMode(SingleSelection);
  setEditTriggers(NoEditTriggers);
  setShowGrid(false);
  setWordWrap(false);
  setTabKeyNavigation(false);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setMinimumHeight(kFewestRows * kLowestRow);
  fitRows();
}

void SidePlayersTable::fitColumns() {
  for (const int column : {SidePlayersModel::Number, SidePlayersModel::Position})
    setColumnWidth(column, std::max(sizeHintForColumn(column), horizontalHeader()->sectionSizeHint(column)) +
                               kPadding);
}

QSize SidePlayersTable::sizeHint() const {
  return {QTableView::sizeHint().width(),
          horizontalHeader()->sizeHint().height() + NewGame::kMostPlayers * kLowestRow + 2 * frameWidth()};
}

// Where there is more room than fifteen players need, they take some of it.
void SidePlayersTable::fitRows() {
  verticalHeader()->setDefaultSectionSize(
      std::clamp(viewport()->height() / NewGame::kMostPlayers, kLowestRow, kHighestRow));
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
