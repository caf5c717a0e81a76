#include "review/CompactBoxModel.h"

#include "appearance/relabel.h"

namespace hooptab {

namespace {

constexpr double kBehindAll = -1e9;
constexpr QChar kStarterMark(0x25A0);

} // namespace

void CompactBoxModel::showRows(const QString& head, std::vector<CompactRow> rows,
                               const CompactChoice& choice) {
  const bool isSameShape = rows.size() == m_rows.size() && choice == m_choice;
  if (!isSameShape)
    beginResetModel();
  m_head = head;
  m_choice = choice;
  const bool isChanged = rows != m_rows;
  m_rows = std::move(rows);
  if (!isSameShape)
    endResetModel();
  else if (isChanged)
    emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
  emit headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
}

const CompactColumn& CompactBoxModel::columnAt(int column) const {
  return compactColumns()[m_choice[static_cast<std::size_t>(column - FirstCell)]];
}

int CompactBoxModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int CompactBoxModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : FirstCell + static_cast<int>(m_choice.size());
}

QVariant CompactBoxModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid())
    return {};
  const CompactRow& row = m_rows[static_cast<std::size_t>(index.row())];
  switch (role) {
  case kTableTotalRole: return row.isTotal;
  case DidNotPlayRole: return row.didNotPlay;
  case Qt::TextAlignmentRole:
    return QVariant::fromValue(Qt::Alignment(index.column() == Name ? Qt::AlignLeft : Qt::AlignRight) |
                               Qt::AlignVCenter);
  default: break;
  }
  return index.column() < FirstCell ? nameData(row, index.column(), role)
                                    : cellData(row, index.column() - FirstCell, role);
}

QVariant CompactBoxModel::nameData(const CompactRow& row, int column, int role) const {
  switch (role) {
  case Qt::DisplayRole:
    if (column == Starter)
      return row.isStarter ? QString(kStarterMark) : QString();
    return toQt(column == Number ? row.number : row.name);
  case kTableSortRole:
    if (column == Starter)
      return row.isStarter ? 1.0 : 0.0;
    return column == Number ? QVariant(row.numberSortValue) : toQt(row.name);
  case Qt::ToolTipRole:
    if (column == Starter && row.isStarter)
      return caption(m_texts, Text::StarterMark);
    return column == Name ? toQt(row.name) : QVariant();
  case PositionRole: return column == Name ? toQt(row.position) : QString();
  default: return {};
  }
}

QVariant CompactBoxModel::cellData(const CompactRow& row, int column, int role) const {
  if (row.didNotPlay) {
    // In words once, where the first figure would stand.
    if (role == Qt::DisplayRole)
      return column == 0 ? caption(m_texts, Text::DidNotPlay) : QString();
    return role == kTableSortRole ? QVariant(kBehindAll) : QVariant();
  }
  const CompactCell& cell = row.cells[static_cast<std::size_t>(column)];
  switch (role) {
  case Qt::DisplayRole: return toQt(cell.text);
  case kTableSortRole: return cell.sortValue;
  case EmphasisRole: return static_cast<int>(cell.emphasis);
  case kTableKindRole: {
    bool isNumber = false;
    toQt(cell.text).toDouble(&isNumber);
    if (columnAt(FirstCell + column).isTime)
      return static_cast<int>(TableKind::Time);
    return static_cast<int>(isNumber ? TableKind::Number : TableKind::Text);
  }
  default: return {};
  }
}

QString CompactBoxModel::toolTip(int section) const {
  if (section == Starter)
    return caption(m_texts, Text::StarterMark);
  if (section < FirstCell)
    return {};
  const CompactColumn& column = columnAt(section);
  if (column.name == kOwnRatingColumn && !m_ownTip.isEmpty())
    return m_ownTip;
  const QString words = caption(m_texts, column.words);
  return column.tip == Text::None ? words : words + u'\n' + caption(m_texts, column.tip);
}

void CompactBoxModel::setOwnRating(const QString& head, const QString& toolTip) {
  m_ownHead = head;
  m_ownTip = toolTip;
}

QString CompactBoxModel::headAt(int column) const {
  if (column < FirstCell)
    return column == Starter ? QString() : column == Number ? QStringLiteral("No") : m_head;
  const CompactColumn& shown = columnAt(column);
  return shown.name == kOwnRatingColumn && !m_ownHead.isEmpty() ? m_ownHead : toQt(shown.name);
}

QVariant CompactBoxModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || section < 0 || section >= columnCount())
    return {};
  switch (role) {
  case Qt::DisplayRole: return headAt(section);
  case kTableNameRole:
    if (section < FirstCell)
      return QStringList{QStringLiteral("starter"), QStringLiteral("No"), QStringLiteral("Name")}[section];
    return toQt(columnAt(section).name);
  case Qt::ToolTipRole: return toolTip(section);
  case Qt::TextAlignmentRole:
    return QVariant::fromValue(Qt::Alignment(section == Name ? Qt::AlignLeft : Qt::AlignRight) |
                               Qt::AlignVCenter);
  // Whoever sorts by a number wants the best first.
  case Qt::InitialSortOrderRole:
    return section == Number || section == Name ? Qt::AscendingOrder : Qt::DescendingOrder;
  default: return {};
  }
}

} // namespace hooptab
