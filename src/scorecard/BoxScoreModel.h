// The box score as a table for views: its columns in creation order (column 0 is the first), check marks in
// the first. Takes new rows without a reset, so that selection, sort and scroll of its views survive.
// Computes nothing: rows and marks come from outside, cells' texts from BoxScore.
#pragma once

#include "appearance/TableContent.h"
#include "scorecard/BoxScore.h"
#include "scorecard/ScorecardView.h"

#include <QAbstractTableModel>

#include <vector>

namespace hooptab {

class BoxScoreModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  enum Role {
    SortRole = kTableSortRole, // number or text
    TotalRole = kTableTotalRole,
  };

  explicit BoxScoreModel(QObject* parent = nullptr) : QAbstractTableModel(parent) {}

  struct Row {
    BoxRow box;
    Qt::CheckState check = Qt::Checked;
  };
  // `sameTable` says whether these are the rows shown before, read anew; else everything starts afresh.
  void showRows(std::vector<Row> rows, bool sameTable);
  // Three headers and all tool tips depend on the language.
  void showHeaders(const QStringList& headers, const QStringList& toolTips);
  const BoxRow& row(int row) const { return m_rows[static_cast<std::size_t>(row)].box; }

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  bool setData(const QModelIndex& index, const QVariant& value, int role) override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;

  // Whether a column's group is tinted: groups of four alternate, so that their equal "PTS" headers stay
  // apart.
  static bool isShaded(int column);

 signals:
  // The user's wish; the mark changes when rows are shown again.
  void checkAsked(int row, bool isChecked);

 private:
  std::vector<Row> m_rows;
  QStringList m_headers;
  QStringList m_toolTips;
};

} // namespace hooptab
