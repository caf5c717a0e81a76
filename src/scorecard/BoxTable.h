// One box score table of the scorecard: model, sort and view with the columns in their display order and
// widths that fit what they can hold. The window owns two, for players and for lines.
#pragma once

#include "scorecard/BoxScoreModel.h"
#include "scorecard/BoxSortProxy.h"
#include "scorecard/FrozenTableView.h"

#include <QString>

namespace hooptab {

class BoxTable : public FrozenTableView {
  Q_OBJECT

 public:
  explicit BoxTable(const QString& name, QWidget* parent = nullptr);

  // Shows the rows of the view; `sameTable` keeps selection, sort and scroll.
  void showRows(const ScorecardView& view, bool sameTable);
  void relabel(const QStringList& headers, const QStringList& toolTips);

 signals:
  // The row of the box score whose mark the user turned.
  void checkAsked(const BoxRow& row, bool isChecked);

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  int numberWidth(int column) const;
  void fitColumns();
  void fitRows();

  BoxScoreModel m_model;
  BoxSortProxy m_sorted;
};

} // namespace hooptab
