#include "season/SnapshotModel.h"

#include "appearance/Theme.h"

#include <QCollator>
#include <QFont>
#include <QGuiApplication>
#include <QPalette>
#include <algorithm>
#include <numeric>

namespace hooptab {

namespace {

Qt::Alignment alignmentOf(const TableColumn& column) {
  return (column.isLeftAligned ? Qt::AlignLeft : Qt::AlignHCenter) | Qt::AlignVCenter;
}

template <typename Keys>
void sortBy(std::vector<int>& order, const Keys& keys, Qt::SortOrder direction) {
  std::ranges::stable_sort(order, [&](int left, int right) {
    if (direction == Qt::DescendingOrder)
      std::swap(left, right);
    return keys[static_cast<std::size_t>(left)] < keys[static_cast<std::size_t>(right)];
  });
}

} // namespace

void SnapshotModel::showColumns(std::vector<TableColumn> columns) {
  if (m_columns.empty()) {
    beginResetModel();
    m_columns = std::move(columns);
    endResetModel();
    return;
  }
  m_columns = std::move(columns);
  emit headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
  if (rowCount() > 0)
    emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
}

void SnapshotModel::showRows(TableRows rows) {
  beginResetModel();
  m_rows = std::move(rows);
  m_order = sortedOrder();
  endResetModel();
}

int SnapshotModel::shownRow(int sourceRow) const {
  const auto found = std::ranges::find(m_order, sourceRow);
  return found == m_order.end() ? -1 : static_cast<int>(found - m_order.begin());
}

int SnapshotModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(m_order.size());
}

int SnapshotModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(m_columns.size());
}

QVariant SnapshotModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid())
    return {};
  const int row = sourceRow(index.row());
  const TableColumn& shown = column(index.column());
  switch (role) {
  case Qt::DisplayRole: return m_rows.text(row, index.column());
  case kSortRole:
    return shown.isText ? QVariant(m_rows.text(row, index.column()))
                        : QVariant(m_rows.sortValue(row, index.column()));
  case Qt::ToolTipRole: {
    if (m_rows.toolTip) {
      if (const QString own = m_rows.toolTip(row); !own.isEmpty())
        return own;
    }
    return shown.isText ? QVariant(m_rows.text(row, index.column())) : QVariant();
  }
  case Qt::TextAlignmentRole: return QVariant::fromValue(alignmentOf(shown));
  // Most cells of statistics are 0: muted, they let the others stand out.
  case Qt::ForegroundRole: {
    const bool isZero = !shown.isText && !shown.isLeftAligned && m_rows.sortValue(row, index.column()) <= 0 &&
                        !m_rows.text(row, index.column()).startsWith(u'-');
    return isZero || (m_rows.isMuted && m_rows.isMuted(row)) ? QVariant(Theme::muted()) : QVariant();
  }
  case Qt::FontRole: {
    if (!shown.isBold)
      return {};
    QFont bold;
    bold.setBold(true);
    return bold;
  }
  case Qt::BackgroundRole:
    return shown.isShaded ? QGuiApplication::palette().brush(QPalette::AlternateBase) : QVariant();
  default: return {};
  }
}

QVariant SnapshotModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || section < 0 || section >= columnCount())
    return {};
  const TableColumn& shown = column(section);
  switch (role) {
  case Qt::DisplayRole: return shown.header;
  case Qt::ToolTipRole: return shown.toolTip;
  case Qt::TextAlignmentRole: return QVariant::fromValue(alignmentOf(shown));
  // Whoever sorts by a number wants the best first.
  case Qt::InitialSortOrderRole:
    return shown.isText || shown.isLeftAligned ? Qt::AscendingOrder : Qt::DescendingOrder;
  default: return {};
  }
}

std::vector<int> SnapshotModel::sortedOrder() const {
  std::vector<int> order(static_cast<std::size_t>(m_rows.count));
  std::iota(order.begin(), order.end(), 0);
  if (m_sortColumn < 0 || m_sortColumn >= columnCount())
    return order;
  if (!column(m_sortColumn).isText) {
    std::vector<double> keys;
    keys.reserve(order.size());
    for (const int row : order)
      keys.push_back(m_rows.sortValue(row, m_sortColumn));
    sortBy(order, keys, m_sortOrder);
    return order;
  }
  const QCollator collator;
  std::vector<QCollatorSortKey> keys;
  keys.reserve(order.size());
  for (const int row : order)
    keys.push_back(collator.sortKey(m_rows.text(row, m_sortColumn)));
  sortBy(order, keys, m_sortOrder);
  return order;
}

void SnapshotModel::sort(int column, Qt::SortOrder order) {
  m_sortColumn = column;
  m_sortOrder = order;
  emit layoutAboutToBeChanged({}, VerticalSortHint);
  const QModelIndexList before = persistentIndexList();
  std::vector<int> sources;
  for (const QModelIndex& each : before)
    sources.push_back(sourceRow(each.row()));
  m_order = sortedOrder();
  std::vector<int> places(m_order.size());
  for (std::size_t i = 0; i < m_order.size(); ++i)
    places[static_cast<std::size_t>(m_order[i])] = static_cast<int>(i);
  QModelIndexList after;
  for (qsizetype i = 0; i < before.size(); ++i)
    after << index(places[static_cast<std::size_t>(sources[static_cast<std::size_t>(i)])],
                   before[i].column());
  changePersistentIndexList(before, after);
  emit layoutChanged({}, VerticalSortHint);
}

} // namespace hooptab
