#include "exchange/RowModel.h"

#include "appearance/TableContent.h"
#include "appearance/Theme.h"
#include "appearance/relabel.h"

namespace hooptab {

namespace {

int alignment(const RowColumn& column) {
  return static_cast<int>((column.isNumber ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
}

} // namespace

RowModel::RowModel(std::vector<RowColumn> columns, const Texts& texts, QObject* parent)
    : QAbstractTableModel(parent), m_columns(std::move(columns)), m_texts(texts) {}

void RowModel::show(RowSource rows) {
  beginResetModel();
  m_rows = std::move(rows);
  endResetModel();
}

void RowModel::refresh() {
  emit headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
  if (m_rows.count > 0)
    emit dataChanged(index(0, 0), index(m_rows.count - 1, columnCount() - 1));
}

int RowModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : m_rows.count;
}

int RowModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(m_columns.size());
}

std::optional<bool> RowModel::checkOf(const QModelIndex& index) const {
  return index.column() == 0 && m_rows.isChecked ? m_rows.isChecked(index.row()) : std::nullopt;
}

Qt::ItemFlags RowModel::flags(const QModelIndex& index) const {
  Qt::ItemFlags flags = QAbstractTableModel::flags(index);
  if (!index.isValid())
    return flags;
  flags.setFlag(Qt::ItemIsUserCheckable, checkOf(index).has_value());
  flags.setFlag(Qt::ItemIsEditable, m_columns[static_cast<std::size_t>(index.column())].isTyped);
  return flags;
}

QString RowModel::toolTip(const QModelIndex& index) const {
  const QString text = m_rows.text(index.row(), index.column());
  const QString words = m_rows.toolTip ? m_rows.toolTip(index.row()) : QString();
  if (words.isEmpty() || text.isEmpty())
    return text + words;
  return text + u'\n' + words;
}

QVariant RowModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid())
    return {};
  const RowColumn& column = m_columns[static_cast<std::size_t>(index.column())];
  switch (role) {
  case Qt::DisplayRole:
  case Qt::EditRole: return m_rows.text(index.row(), index.column());
  case Qt::ToolTipRole: return toolTip(index);
  case Qt::CheckStateRole:
    if (const std::optional<bool> check = checkOf(index))
      return *check ? Qt::Checked : Qt::Unchecked;
    return {};
  case Qt::TextAlignmentRole: return alignment(column);
  case Qt::ForegroundRole:
    return m_rows.isMuted && m_rows.isMuted(index.row()) ? QVariant(Theme::muted()) : QVariant();
  case kTableSortRole: {
    const QString text = m_rows.text(index.row(), index.column());
    return column.isNumber ? QVariant(text.toInt()) : QVariant(text);
  }
  case kTableKindRole: return static_cast<int>(column.isNumber ? TableKind::Number : TableKind::Text);
  default: return {};
  }
}

bool RowModel::setData(const QModelIndex& index, const QVariant& value, int role) {
  if (role == Qt::CheckStateRole && checkOf(index) && m_rows.check)
    m_rows.check(index.row(), value.toInt() == Qt::Checked);
  else if (role == Qt::EditRole && flags(index).testFlag(Qt::ItemIsEditable) && m_rows.type)
    m_rows.type(index.row(), value.toString());
  else
    return false;
  emit dataChanged(this->index(index.row(), 0), this->index(index.row(), columnCount() - 1));
  return true;
}

QVariant RowModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || section < 0 || section >= columnCount())
    return {};
  const RowColumn& column = m_columns[static_cast<std::size_t>(section)];
  if (role == Qt::DisplayRole || role == Qt::ToolTipRole)
    return caption(m_texts, column.header);
  if (role == Qt::TextAlignmentRole)
    return alignment(column);
  return {};
}

} // namespace hooptab
