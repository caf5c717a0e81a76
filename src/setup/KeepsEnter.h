// An event filter: the Enter key is used up, pressed and released, so that it neither breaks a line nor
// presses the default button of the window. On a container it takes what the widgets in it leave over.
#pragma once

#include <QKeyEvent>
#include <QObject>

namespace hooptab {

class KeepsEnter : public QObject {
 public:
  using QObject::QObject;

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease) {
      const int key = static_cast<QKeyEvent*>(event)->key();
      if (key == Qt::Key_Return || key == Qt::Key_Enter)
        return true;
    }
    return QObject::eventFilter(watched, event);
  }
};

} // namespace hooptab
