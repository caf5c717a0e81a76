// One cell of the table of totals: a count, and whether its row, or itself, is the one worked on. Draws what
// the table tells it.
#pragma once

#include "appearance/PlainLabel.h"

namespace hooptab {

class CountCell : public PlainLabel {
  Q_OBJECT
 public:
  static constexpr int kLargestHeight = 30; // of a row

  enum class Look { Even, Odd, InRow, Current, Typing, Total };
  explicit CountCell(const QString& name, QWidget* parent = nullptr);

  void setLook(Look look);
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  Look m_look = Look::Even;
};

} // namespace hooptab
