// A sheet with rounded corners on the window's desk: what belongs together, without the frame and the place
// for a title that a group box keeps.
#pragma once

#include <QPainter>
#include <QStyleOption>
#include <QWidget>

namespace hooptab {

class Card : public QWidget {
 public:
  using QWidget::QWidget;

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    QStyleOption option;
    option.initFrom(this);
    style()->drawPrimitive(QStyle::PE_FrameGroupBox, &option, &painter, this);
  }
};

} // namespace hooptab
