#include "scorecard/BoxScoreModel.h"

#include "appearance/Theme.h"
#include "appearance/relabel.h"
#include "game/TableKinds.h"

#include <QBrush>
#include <QFont>
#include <QGuiApplication>
#include <QPalette>
#include <algorithm>

namespace hooptab {

namespace {

constexpr int kNumberColumn = 0;
constexpr int kNameColumn = 1;

QVariant alignment(const BoxTableColumn& column) {
  return QVariant::fromValue(Qt::Alignment(column.isLeftAligned ? Qt::AlignLeft : Qt::AlignHCenter) |
                             Qt::AlignVCenter);
}

// A percentage without attempts sorts below 0; a rating below 0 is no zero.
bool isZero(const BoxRow& row, const BoxTableColumn& column) {
  const double value = column.sortValue(row);
  return value == 0 || (value < 0 && column.text(row) == QLatin1String("0.0%"));
}

bool isSameRow(const BoxRow& one, const BoxRow& other) {
  return one.kind == other.kind && boxRowKey(one) == boxRowKey(other);
}

bool isEqual(const BoxScoreModel::Row& one, const BoxScoreModel::Row& other) {
  const BoxRow& a = one.box;
  const BoxRow& b = other.box;
  return one.check == other.check && a.entry == b.entry && a.number == b.number && a.name == b.name &&
         a.position == b.position && a.numbers.seconds == b.numbers.seconds &&
         a.numbers.counters == b.numbers.counters && a.foulsDrawn == b.foulsDrawn &&
         a.blocksAgainst == b.blocksAgainst;
}

} // namespace

void BoxScoreModel::showRows(std::vector<Row> rows, bool sameTable) {
  if (!sameTable) {
    beginResetModel();
    m_rows = std::move(rows);
    endResetModel();
    return;
  }
  // Step by step: a row that is gone is removed, one that is new is inserted, one that stayed is told only
  // where it changed.
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const auto isWanted = [&](const Row& row) { return isSameRow(row.box, m_rows[i].box); };
    while (i < m_rows.size() &&
           std::none_of(rows.begin() + static_cast<std::ptrdiff_t>(i), rows.end(), isWanted)) {
      beginRemoveRows({}, static_cast<int>(i), static_cast<int>(i));
      m_rows.erase(m_rows.begin() + static_cast<std::ptrdiff_t>(i));
      endRemoveRows();
    }
    if (i == m_rows.size() || !isSameRow(m_rows[i].box, rows[i].box)) {
      beginInsertRows({}, static_cast<int>(i), static_cast<int>(i));
      m_rows.insert(m_rows.begin() + static_cast<std::ptrdiff_t>(i), std::move(rows[i]));
      endInsertRows();
    } else if (!isEqual(m_rows[i], rows[i])) {
      m_rows[i] = std::move(rows[i]);
      emit dataChanged(index(static_cast<int>(i), 0), index(static_cast<int>(i), columnCount() - 1));
    }
  }
  if (m_rows.size() > rows.size()) {
    beginRemoveRows({}, static_cast<int>(rows.size()), static_cast<int>(m_rows.size()) - 1);
    m_rows.resize(rows.size());
    endRemoveRows();
  }
}

void BoxScoreModel::showHeaders(const QStringList& headers, const QStringList& toolTips) {
  m_headers = headers;
  m_toolTips = toolTips;
  emit headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
}

int BoxScoreModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int BoxScoreModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(m_columns.size());
}

QVariant BoxScoreModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid())
    return {};
  const Row& row = m_rows[static_cast<std::size_t>(index.row())];
  const BoxTableColumn& column = this->column(index.column());
  const bool isTotal = row.box.kind == BoxRowKind::Total;
  switch (role) {
  case Qt::DisplayRole: return column.text(row.box);
  case SortRole: return column.isText ? QVariant(column.text(row.box)) : column.sortValue(row.box);
  case kTableKindRole: return column.kind ? static_cast<int>(tableKind(*column.kind)) : QVariant();
  case TotalRole: return isTotal;
  case Qt::CheckStateRole:
    return index.column() == kNumberColumn && row.check ? QVariant(*row.check) : QVariant();
  case Qt::ToolTipRole: return index.column() == kNameColumn ? toQt(row.box.name) : QVariant();
  case Qt::TextAlignmentRole: return alignment(column);
  case Qt::FontRole: {
    if (!isTotal && !column.isBold)
      return {};
    QFont bold;
    bold.setBold(true);
    return bold;
  }
  // Most cells of a box score are 0: muted, they let the others stand out.
  case Qt::ForegroundRole:
    return column.kind && !isTotal && isZero(row.box, column) ? QVariant(Theme::muted()) : QVariant();
  case Qt::BackgroundRole: {
    const QPalette palette = QGuiApplication::palette();
    if (isTotal)
      return palette.brush(QPalette::Button);
    return column.isShaded ? palette.brush(QPalette::AlternateBase) : QVariant();
  }
  default: return {};
  }
}

bool BoxScoreModel::setData(const QModelIndex& index, const QVariant& value, int role) {
  if (role != Qt::CheckStateRole || !index.isValid() || index.column() != kNumberColumn ||
      !m_rows[static_cast<std::size_t>(index.row())].check)
    return false;
  emit checkAsked(index.row(), value.toInt() != Qt::Unchecked);
  return true;
}

QVariant BoxScoreModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || section < 0 || section >= columnCount())
    return {};
  switch (role) {
  case Qt::DisplayRole: return m_headers.value(section);
  case Qt::ToolTipRole: return m_toolTips.value(section);
  case kTableNameRole: return column(section).name;
  case Qt::TextAlignmentRole: return alignment(column(section));
  // Whoever sorts by a number wants the best first.
  case Qt::InitialSortOrderRole: return column(section).isText ? Qt::AscendingOrder : Qt::DescendingOrder;
  default: return {};
  }
}

Qt::ItemFlags BoxScoreModel::flags(const QModelIndex& index) const {
  if (!index.isValid())
    return {};
  const Qt::ItemFlags usual = QAbstractTableModel::flags(index) | Qt::ItemNeverHasChildren;
  const bool isCheckable = index.data(Qt::CheckStateRole).isValid();
  return isCheckable ? usual | Qt::ItemIsUserCheckable : usual;
}

} // namespace hooptab
