#include "manual/CountButton.h"

#include <QMouseEvent>

namespace hooptab {

CountButton::CountButton(const QString& text, QWidget* parent) : QPushButton(text, parent) {
  setAutoDefault(false);
  setFocusPolicy(Qt::TabFocus); // a press leaves the table's cell where it is
  connect(this, &QPushButton::clicked, this, [this] { emit counted(ManualTotals::Step::Up); });
}

void CountButton::mousePressEvent(QMouseEvent* event) {
  const bool isLeft = event->button() == Qt::LeftButton;
  if (event->buttons() != event->button() || (!isLeft && event->button() != Qt::RightButton))
    return; // a second button while one is held, or a third one
  setDown(true);
  emit counted(isLeft ? ManualTotals::Step::Up : ManualTotals::Step::Down);
}

// The press has done everything: what would make a click of it is not for the mouse.
void CountButton::mouseReleaseEvent(QMouseEvent* event) {
  setDown(false);
  event->accept();
}

void CountButton::mouseMoveEvent(QMouseEvent* event) {
  event->accept();
}

void CountButton::mouseDoubleClickEvent(QMouseEvent* event) {
  mousePressEvent(event);
}

} // namespace hooptab
