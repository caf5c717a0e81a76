// A sorted table of a RowModel, in the look of the house: Space checks the selected rows, Enter and a double
// click ask for one. Rows are meant by their place in the model, however the table is sorted.
#pragma once

#include "appearance/Measure.h"
#include "exchange/RowModel.h"

#include <QTableView>

#include <optional>
#include <vector>

class QSortFilterProxyModel;

namespace hooptab {

class RowTable : public QTableView {
  Q_OBJECT
 public:
  // Texts must outlive it.
  RowTable(const char* name, Text accessibleName, std::vector<RowColumn> columns, const Texts& texts,
           QWidget* parent);

  void show(RowSource rows); // the order of the sort stays
  using QTableView::show;
  void refresh();
  void fitToFont();                     // where the program's measure is another
  [[nodiscard]] int currentRow() const; // -1: none
  [[nodiscard]] std::vector<int> selectedRows() const;
  void selectRow(int row);

  [[nodiscard]] QByteArray widths() const;
  void restoreWidths(const QByteArray& state);

 signals:
  void currentRowChanged(int row);
  void rowAsked(int row);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

 private:
  void toggleSelected();

  std::optional<Measure> m_measure;
  RowModel* m_rows;
  QSortFilterProxyModel* m_sorted;
};

} // namespace hooptab
