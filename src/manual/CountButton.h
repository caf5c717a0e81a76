// A button that counts when it is pressed, not when it is let go: up with the left mouse button or by key,
// down with the right one. Two fast presses are two.
#pragma once

#include "totals/ManualTotals.h"

#include <QPushButton>

namespace hooptab {

class CountButton : public QPushButton {
  Q_OBJECT
 public:
  explicit CountButton(const QString& text, QWidget* parent = nullptr);

 signals:
  void counted(ManualTotals::Step step);

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
};

} // namespace hooptab
