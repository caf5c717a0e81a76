// A table over values that never change: columns and cells come from outside as functions, so that tables of
// games, players, leaders and records are one class. Sorts by keys that are made once for each sort, because
// a season has thousands of rows. Knows nothing of basketball.
#pragma once

#include "appearance/TableContent.h"
#include "season/ColumnFilter.h"

#include <QAbstractTableModel>

#include <functional>
#include <vector>

namespace hooptab {

struct TableColumn {
  QString header;
  QString toolTip = {};
  QString longest = {}; // the widest text of a column of numbers
  bool isLeftAligned = false;
  bool isText = false; // sorts by its text
  bool isHidden = false;
  bool isShaded = false; // tinted, to tell groups of columns apart
  bool isBold = false;
  QString name = {}; // unique in its table, for files; empty: the header
  TableKind kind = TableKind::Text;
  int leastWidth = 0; // of a column that shows more than its text
};

// Rows and columns count from 0. What a function refers to must live as long as the model shows it.
struct TableRows {
  int count = 0;
  std::function<QString(int row, int column)> text;
  std::function<double(int row, int column)> sortValue = {}; // of columns that are no text
  // Of columns that hold now one, now another; else the column's.
  std::function<TableKind(int row, int column)> kind = {};
  // Of columns of text, where they do not sort by what they show.
  std::function<QString(int row, int column)> sortText = {};
  std::function<bool(int row)> isMuted = {};
  std::function<bool(int row)> isMarked = {};           // with the sign that something is to be looked at
  std::function<bool(int row, int column)> isHigh = {}; // the best of its kind
  std::function<QString(int row)> toolTip = {};         // where the cell's own text is not enough
};

class SnapshotModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  static constexpr int kSortRole = kTableSortRole; // number or text

  using QAbstractTableModel::QAbstractTableModel;

  // The number of columns stays the same once there are any: in another language, with other tool tips.
  void showColumns(std::vector<TableColumn> columns);
  const std::vector<TableColumn>& columns() const { return m_columns; }
  // Other rows, in the order of the sort in force.
  void showRows(TableRows rows);
  // Of the rows only those that every filter lets pass, one a column.
  void filter(std::vector<ColumnFilter> filters);
  // The place, in the rows given, of a row shown; and the other way round, -1 for none.
  int sourceRow(int row) const { return m_order[static_cast<std::size_t>(row)]; }
  int shownRow(int sourceRow) const;

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  // Column -1 is the order in which the rows came. Equal ones keep it in both orders.
  void sort(int column, Qt::SortOrder order) override;

 private:
  const TableColumn& column(int column) const { return m_columns[static_cast<std::size_t>(column)]; }
  std::vector<int> sortedOrder() const;
  bool passes(int row) const;

  std::vector<TableColumn> m_columns;
  TableRows m_rows;
  std::vector<ColumnFilter> m_filters;
  std::vector<int> m_order;
  int m_sortColumn = -1;
  Qt::SortOrder m_sortOrder = Qt::AscendingOrder;
};

} // namespace hooptab
