// A chip that says which part of the game is shown; pressed, it shows the whole game again. Cut where there
// is no room, it says the whole of it as tool tip.
#pragma once

#include <QAbstractButton>

namespace hooptab {

class StretchChip : public QAbstractButton {
 public:
  explicit StretchChip(QWidget* parent = nullptr);
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
};

} // namespace hooptab
