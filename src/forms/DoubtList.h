// The doubtful cells of a scanned sheet, to be gone through one by one: how many are left, the list, and the
// buttons and keys that say what a cell is. Settles nothing itself.
#pragma once

#include "forms/CheckedSheet.h"
#include "settings/Texts.h"

#include <QWidget>

#include <functional>
#include <vector>

class QLabel;
class QListWidget;

namespace hooptab {

class DoubtList : public QWidget {
  Q_OBJECT

 public:
  using CellWords = std::function<QString(std::size_t cell)>;
  // Sheet and texts must outlive it.
  DoubtList(const CheckedSheet& sheet, const Texts& texts, CellWords words, QWidget* parent = nullptr);

  void beginSheet(); // the sheet is another one
  void showDoubts(); // something on it has changed
  bool isEmpty() const { return m_cells.empty(); }

  enum class From { Start, Selected };
  void goToOpen(From from); // the first that nobody has looked at, around the end of the list
  void takeFocus();

 signals:
  void cellChosen(std::size_t cell);
  void judged(bool isTicked); // the cell that is worked on, which may be one of no doubt

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  const CheckedSheet& m_sheet;
  const Texts& m_texts;
  CellWords m_words;
  std::vector<std::size_t> m_cells; // in the order of the list
  QLabel* m_count = nullptr;
  QListWidget* m_list = nullptr;
};

} // namespace hooptab
