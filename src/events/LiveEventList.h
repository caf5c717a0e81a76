// A table of the events of a live game, the newest on top: in the column of the live window, and once more in
// a window of its own. Shows the rows that it is given; what is done with them is for its owner to say.
#pragma once

#include <QTableView>

#include <functional>

namespace hooptab {

class LiveEventList : public QTableView {
  Q_OBJECT
 public:
  // `rows` are LiveEventRows and must outlive it.
  LiveEventList(const QString& name, QAbstractItemModel& rows, QWidget* parent);

  // Asked first on a double click; what it takes (true) is not edited.
  using RowTaker = std::function<bool(const QModelIndex& row)>;
  void setDoubleClick(RowTaker taker) { m_doubleClick = std::move(taker); }
  void applyColours();                                            // and lengths
  void showAtTop(const QModelIndex& row);                         // also right behind rows that have come in
  [[nodiscard]] QPoint cornerUnder(const QModelIndex& row) const; // of the screen

 signals:
  void chipClicked(const QModelIndex& row); // the mark of what is to be looked at

 protected:
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  RowTaker m_doubleClick;
};

} // namespace hooptab
