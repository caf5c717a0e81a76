// A box score as a table for views: the columns that it was made with, check marks in the first where its
// rows have any. Takes new rows without a reset, so that selection, sort and scroll of its views survive.
// Computes nothing: rows and marks come from outside, cells' texts from the columns.
#pragma once

#include "appearance/TableContent.h"
#include "scorecard/BoxTableColumn.h"

#include <QAbstractTableModel>

#include <optional>
#include <vector>

namespace hooptab {

class BoxScoreModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  enum Role {
    SortRole = kTableSortRole, // number or text
    TotalRole = kTableTotalRole,
  };

  explicit BoxScoreModel(std::vector<BoxTableColumn> columns, QObject* parent = nullptr)
      : QAbstractTableModel(parent), m_columns(std::move(columns)) {}
  const std::vector<BoxTableColumn>& columns() const { return m_columns; }

  struct Row {
    BoxRow box;
    std::optional<Qt::CheckState> check = {};
  };
  // `sameTable` says whether these are the rows shown before, read anew; else everything starts afresh.
  void showRows(std::vector<Row> rows, bool sameTable);
  // Some headers and all tool tips depend on the language.
  void showHeaders(const QStringList& headers, const QStringList& toolTips);
  const BoxRow& row(int row) const { return m_rows[static_cast<std::size_t>(row)].box; }

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  bool setData(const QModelIndex& index, const QVariant& value, int role) override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;

 signals:
  // The user's wish; the mark changes when rows are shown again.
  void checkAsked(int row, bool isChecked);

 private:
  const BoxTableColumn& column(int column) const { return m_columns[static_cast<std::size_t>(column)]; }

  const std::vector<BoxTableColumn> m_columns;
  std::vector<Row> m_rows;
  QStringList m_headers;
  QStringList m_toolTips;
};

} // namespace hooptab
