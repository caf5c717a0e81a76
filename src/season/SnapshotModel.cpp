#include "season/SnapshotModel.h"

#include "appearance/Icons.h"
#include "appearance/Theme.h"
#include "appearance/relabel.h"
#include "storage/NameOrder.h"

#include <QFont>
#include <QGuiApplication>
#include <QHash>
#include <QPalette>
#include <algorithm>
#include <cstdint>
#include <optional>

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

// The jerseys of a line ("04-07-12-23-45 *") as a number of the same order; nothing for other texts.
std::optional<std::uint64_t> jerseysAsNumber(const QString& text) {
  constexpr QLatin1String kLetters(" *-0123456789"); // in the order of names
  constexpr qsizetype kLongest = 16;                 // four bits a letter
  if (text.size() > kLongest)
    return std::nullopt;
  std::uint64_t number = 0;
  for (qsizetype i = 0; i < kLongest; ++i) {
    const qsizetype place = i < text.size() ? kLetters.indexOf(text[i]) : -1;
    if (place < 0 && i < text.size())
      return std::nullopt;
    number = number << 4 | static_cast<std::uint64_t>(place + 1);
  }
  return number;
}

// A number for each text, in their order. A season has tens of thousands of lines: a key is made of each
// different text once, and of none where all are jerseys, so that the window does not stand still.
std::vector<std::uint64_t> sortNumbers(const std::vector<QString>& texts) {
  std::vector<std::uint64_t> numbers;
  numbers.reserve(texts.size());
  for (const QString& text : texts) {
    const auto number = jerseysAsNumber(text);
    if (!number)
      break;
    numbers.push_back(*number);
  }
  if (numbers.size() == texts.size())
    return numbers;

  QHash<QString, std::uint64_t> ranks;
  for (const QString& text : texts)
    ranks.emplace(text, 0);
  std::vector<std::pair<std::string, QString>> different;
  different.reserve(static_cast<std::size_t>(ranks.size()));
  for (auto each = ranks.keyBegin(); each != ranks.keyEnd(); ++each)
    different.emplace_back(nameOrderKey(fromQt(*each)), *each);
  std::ranges::sort(different, [](const auto& left, const auto& right) { return left.first < right.first; });
  std::uint64_t rank = 0;
  for (std::size_t i = 0; i < different.size(); ++i) {
    if (i > 0 && different[i - 1].first < different[i].first)
      ++rank;
    ranks[different[i].second] = rank;
  }
  numbers.clear();
  for (const QString& text : texts)
    numbers.push_back(ranks.value(text));
  return numbers;
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
  case kTableKindRole: return static_cast<int>(m_rows.kind ? m_rows.kind(row, index.column()) : shown.kind);
  case Qt::ToolTipRole: {
    if (m_rows.toolTip) {
      if (const QString own = m_rows.toolTip(row); !own.isEmpty())
        return own;
    }
    return shown.isText ? QVariant(m_rows.text(row, index.column())) : QVariant();
  }
  case Qt::DecorationRole:
    return index.column() == 0 && m_rows.isMarked && m_rows.isMarked(row)
               ? QVariant(icon(QStringLiteral("tocheck")))
               : QVariant();
  case Qt::TextAlignmentRole: return QVariant::fromValue(alignmentOf(shown));
  // Most cells of statistics are 0: muted, they let the others stand out.
  case Qt::ForegroundRole: {
    const bool isZero = !shown.isText && !shown.isLeftAligned && m_rows.sortValue(row, index.column()) <= 0 &&
                        !m_rows.text(row, index.column()).startsWith(u'-') &&
                        !m_rows.text(row, index.column()).startsWith(QChar(0x2212));
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
    if (m_rows.isHigh && m_rows.isHigh(row, index.column()))
      return QBrush(Theme::look().seasonHigh);
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
  case kTableNameRole: return shown.name;
  case Qt::TextAlignmentRole: return QVariant::fromValue(alignmentOf(shown));
  // Whoever sorts by a number wants the best first.
  case Qt::InitialSortOrderRole:
    return shown.isText || shown.isLeftAligned ? Qt::AscendingOrder : Qt::DescendingOrder;
  default: return {};
  }
}

std::vector<int> SnapshotModel::sortedOrder() const {
  std::vector<int> order;
  order.reserve(static_cast<std::size_t>(m_rows.count));
  for (int row = 0; row < m_rows.count; ++row) {
    if (passes(row))
      order.push_back(row);
  }
  if (m_sortColumn < 0 || m_sortColumn >= columnCount())
    return order;
  if (!column(m_sortColumn).isText) {
    std::vector<double> keys(static_cast<std::size_t>(m_rows.count));
    for (const int row : order)
      keys[static_cast<std::size_t>(row)] = m_rows.sortValue(row, m_sortColumn);
    sortBy(order, keys, m_sortOrder);
    return order;
  }
  std::vector<QString> texts;
  texts.reserve(static_cast<std::size_t>(m_rows.count));
  for (int row = 0; row < m_rows.count; ++row)
    texts.push_back((m_rows.sortText ? m_rows.sortText : m_rows.text)(row, m_sortColumn));
  sortBy(order, sortNumbers(texts), m_sortOrder);
  return order;
}

bool SnapshotModel::passes(int row) const {
  constexpr double kPercent = 100;
  for (int i = 0; i < std::min(static_cast<int>(m_filters.size()), columnCount()); ++i) {
    const ColumnFilter& filter = m_filters[static_cast<std::size_t>(i)];
    if (filter.isEmpty())
      continue;
    const TableKind kind = m_rows.kind ? m_rows.kind(row, i) : column(i).kind;
    const double value = column(i).isText || !m_rows.sortValue ? 0 : m_rows.sortValue(row, i);
    if (!filter.accepts(fromQt(m_rows.text(row, i)), kind == TableKind::Percent ? kPercent * value : value))
      return false;
  }
  return true;
}

void SnapshotModel::filter(std::vector<ColumnFilter> filters) {
  const auto isEmpty = [](const ColumnFilter& filter) { return filter.isEmpty(); };
  if (std::ranges::all_of(filters, isEmpty) && std::ranges::all_of(m_filters, isEmpty))
    return;
  beginResetModel();
  m_filters = std::move(filters);
  m_order = sortedOrder();
  endResetModel();
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
  std::vector<int> places(static_cast<std::size_t>(m_rows.count));
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
