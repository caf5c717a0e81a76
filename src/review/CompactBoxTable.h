// A team's compact box as a table without a frame, a player a row of a few pixels; sorts by its heads and is
// as high as its rows. A column has the width to which it was dragged. Which rows and columns there are is
// decided elsewhere.
#pragma once

#include "review/CompactBoxModel.h"
#include "review/CompactWidths.h"
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
  void setWidths(const CompactWidths& widths);

 signals:
  void copied();
  void widthsChosen(const hooptab::CompactWidths& widths);

 protected:
  void changeEvent(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void fitColumns();
  void keepWidth(int column);
  [[nodiscard]] int chosenWidth(int column) const;
  [[nodiscard]] int neededWidth(int column) const; // of names: of short ones
  [[nodiscard]] std::string keyOf(int column) const;
  [[nodiscard]] int leastWidth(int column) const;

  const Texts& m_texts;
  CompactBoxModel m_model;
  BoxSortProxy m_sorted;
  int m_nameWidth = 0;
  CompactWidths m_widths;
  bool m_isFitting = false; // else the user resizes
};

} // namespace hooptab
