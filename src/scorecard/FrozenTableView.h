// A table whose first columns stay in sight while the others scroll sideways: a second view of the same model
// and selection lies over them. Space turns the check marks of the selected rows; Ctrl+C copies what is
// shown. How wide columns are is for whoever fills it. Knows nothing of basketball.
#pragma once

#include <QTableView>

namespace hooptab {

class FrozenTableView : public QTableView {
  Q_OBJECT

 public:
  // The frozen columns are the first ones of the model, and stay the first ones shown.
  explicit FrozenTableView(int frozenColumns, QWidget* parent = nullptr);

  void setModel(QAbstractItemModel* model) override;
  // To be called after columns were hidden, shown or moved.
  void layOutFrozen();
  void setRowHeight(int height);
  // Unsorted again.
  void clearSort();

 signals:
  void copied();

 protected:
  // Asked for whenever the font is another.
  virtual void fitToFont() {}

  void changeEvent(QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
  void scrollTo(const QModelIndex& index, ScrollHint hint = EnsureVisible) override;

 private:
  int frozenWidth() const;
  void toggleChecks();

  const int m_frozenColumns;
  QTableView* m_frozen;
};

} // namespace hooptab
