// A table of the season's window: model and view in one, with columns that fit what they hold, kept in width
// once the user has changed them.
#pragma once

#include "scorecard/FrozenTableView.h"
#include "season/SnapshotModel.h"

namespace hooptab {

class SeasonTableView : public FrozenTableView {
  Q_OBJECT

 public:
  SeasonTableView(const QString& name, int frozenColumns, QWidget* parent = nullptr);

  SnapshotModel& content() { return m_model; }
  void showColumns(std::vector<TableColumn> columns);
  void showRows(TableRows rows);
  // Rows that are higher than usual, in a narrow window and in a wide one.
  void setRowHeights(int narrow, int wide);
  // The columns share the width that they do not need, as long as the user has chosen none.
  void fillWidth();
  // The place of the current row in the rows given; -1 for none.
  int currentRow() const;
  // The selected rows where there are two or more, else all that are shown; their places in the rows given,
  // ascending.
  [[nodiscard]] std::vector<int> chosenRows() const;

  // Column widths that the user has chosen, as text for the next time.
  QByteArray widths() const;
  void restoreWidths(const QByteArray& widths);

 signals:
  // Double click or Enter on a row.
  void rowAsked(int row);
  void currentRowChanged(int row);
  void focused(); // it has received the focus

 protected:
  void fitToFont() override;
  void focusInEvent(QFocusEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void fitColumns();
  void shareRest();

  SnapshotModel m_model;
  int m_narrowRow;
  int m_wideRow;
  bool m_fillsWidth = false;
  bool m_isFitting = false;
  bool m_hasOwnWidths = false;
};

} // namespace hooptab
