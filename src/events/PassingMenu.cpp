#include "events/PassingMenu.h"

#include <QApplication>
#include <QKeyEvent>
#include <QShortcut>

namespace hooptab {

namespace {

bool isOwn(const QKeyEvent& event) {
  switch (event.key()) {
  case Qt::Key_Up:
  case Qt::Key_Down:
  case Qt::Key_Home:
  case Qt::Key_End:
  case Qt::Key_Tab:
  case Qt::Key_Backtab:
  case Qt::Key_Return:
  case Qt::Key_Enter:
  case Qt::Key_Escape:
  case Qt::Key_Shift:
  case Qt::Key_Control:
  case Qt::Key_Alt: return true;
  default: return false;
  }
}

} // namespace

PassingMenu::PassingMenu(QWidget* parent) : QMenu(parent) {
  setAttribute(Qt::WA_DeleteOnClose);
}

void PassingMenu::keyPressEvent(QKeyEvent* event) {
  if (isOwn(*event))
    return QMenu::keyPressEvent(event);
  QWidget* const below = parentWidget();
  const QKeyEvent key(event->type(), event->key(), event->modifiers(), event->text(), event->isAutoRepeat());
  close();
  handOn(key, *below);
}

void handOn(const QKeyEvent& event, QWidget& below) {
  const QKeySequence key(event.keyCombination());
  if (event.isAutoRepeat())
    return;
  for (QWidget* widget = &below; widget != nullptr; widget = widget->parentWidget()) {
    for (QShortcut* shortcut : widget->findChildren<QShortcut*>(Qt::FindDirectChildrenOnly)) {
      if (shortcut->isEnabled() && shortcut->key() == key) {
        emit shortcut->activated();
        return;
      }
    }
    for (QAction* action : widget->findChildren<QAction*>(Qt::FindDirectChildrenOnly)) {
      if (action->isEnabled() && action->shortcut() == key)
        return action->trigger();
    }
  }
  QKeyEvent again(QEvent::KeyPress, event.key(), event.modifiers(), event.text());
  QCoreApplication::sendEvent(QApplication::focusWidget() != nullptr ? QApplication::focusWidget() : &below,
                              &again);
}

} // namespace hooptab
