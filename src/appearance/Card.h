// A panel of its own on the desk, with round corners and a hairline around it. Its layout is its owner's.
#pragma once

#include <QWidget>

namespace hooptab {

class Card : public QWidget {
  Q_OBJECT
 public:
  using QWidget::QWidget;

 protected:
  void paintEvent(QPaintEvent* event) override;
};

} // namespace hooptab
