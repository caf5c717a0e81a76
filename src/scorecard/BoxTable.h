// One box score table of the scorecard: model, sort and view with widths that fit what the columns can hold.
// The window owns three, for players, for lines, and for a league's sheet.
#pragma once

#include "scorecard/BoxScoreModel.h"
#include "scorecard/BoxSortProxy.h"
#include "scorecard/FrozenTableView.h"
#include "scorecard/ScorecardView.h"

#include <QString>

namespace hooptab {

class BoxTable : public FrozenTableView {
  Q_OBJECT

 public:
  BoxTable(const QString& name, std::vector<BoxTableColumn> columns, QWidget* parent = nullptr);
  // All columns, counted from 1, from left to right; else they stand as they are given.
  void setOrder(const std::vector<int>& order);

  // `sameTable` keeps selection, sort and scroll.
  void showRows(std::vector<BoxScoreModel::Row> rows, bool sameTable);
  void hideMadeAttempted(bool hides);
  void relabel(const QStringList& headers, const QStringList& toolTips);

 signals:
  // The row of the box score whose mark the user turned.
  void checkAsked(const BoxRow& row, bool isChecked);

 protected:
  void fitToFont() override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void fitColumns();
  void fitRows();

  BoxScoreModel m_model;
  BoxSortProxy m_sorted;
};

} // namespace hooptab
