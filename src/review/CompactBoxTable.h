// A team's compact box as a table without a frame, a player a row of a few pixels; sorts by its heads and is
// as high as its rows. Which rows and columns there are is decided elsewhere.
#pragma once

#include "review/CompactBoxModel.h"
#include "scorecard/BoxSortProxy.h"

#include <QTableView>

namespace hooptab {

class CompactBoxTable : public QTableView {
  Q_OBJECT

 public:
  CompactBoxTable(const QString& name, const Texts& texts, QWidget* parent = nullptr);

  // The same choice keeps selection, sort and scroll.
  void showRows(const QString& head, std::vector<CompactRow> rows, const CompactChoice& choice);
  void setOwnRating(const QString& head, const QString& toolTip) { m_model.setOwnRating(head, toolTip); }
  void setRowHeight(int height);
  // With its head and what it scrolls by sideways, the rows that high.
  [[nodiscard]] int heightOf(int rowHeight) const;
  // Of the longest name; both tables of a page take the longer.
  [[nodiscard]] int longestName() const;
  void setNameWidth(int width);

 signals:
  void copied();

 protected:
  void changeEvent(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void fitColumns();
  [[nodiscard]] int leastWidth(int column) const;

  const Texts& m_texts;
  CompactBoxModel m_model;
  BoxSortProxy m_sorted;
  int m_nameWidth = 0;
};

} // namespace hooptab
