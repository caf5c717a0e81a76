// A panel that opens below a button and chooses the columns of a table: a list in which the shown ones are
// checked, in the order in which they stand. Every change is told at once.
#pragma once

#include "appearance/Card.h"
#include "review/CompactBox.h"

class QListWidget;
class QToolButton;

namespace hooptab {

class ColumnChooser : public Card {
  Q_OBJECT

 public:
  // The texts must outlive it.
  explicit ColumnChooser(const Texts& texts, QWidget* parent = nullptr);

  void openBelow(const QWidget& button, const CompactChoice& choice);

 signals:
  void chosen(const hooptab::CompactChoice& choice);

 private:
  QToolButton* addButton(const char* name, Text text, Qt::ArrowType arrow);
  void fill(const CompactChoice& choice);
  void move(int by);
  void tell();

  const Texts& m_texts;
  QListWidget* m_list;
  QToolButton* m_up;
  QToolButton* m_down;
  QToolButton* m_usual;
};

} // namespace hooptab
