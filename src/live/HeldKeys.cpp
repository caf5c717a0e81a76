#include "live/HeldKeys.h"

#include "keypad/QtKeys.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWindow>

namespace hooptab {

namespace {

bool mayRepeat(const QKeyEvent& key) {
  switch (key.key()) {
  case Qt::Key_Left:
  case Qt::Key_Right:
  case Qt::Key_Up:
  case Qt::Key_Down:
  case Qt::Key_PageUp:
  case Qt::Key_PageDown:
  case Qt::Key_Home:
  case Qt::Key_End:
  case Qt::Key_Tab:
  case Qt::Key_Backtab: return !key.modifiers().testFlag(Qt::KeypadModifier); // there they are digits
  default: return false;
  }
}

quint32 numberOf(const QKeyEvent& key) {
  return key.nativeScanCode() != 0 ? key.nativeScanCode() : static_cast<quint32>(key.key());
}

} // namespace

HeldKeys::HeldKeys(QObject* parent) : QObject(parent) {
  qApp->installEventFilter(this);
  // A key that opens a window is let go while neither has the keys, and nobody is told.
  connect(qApp, &QGuiApplication::focusWindowChanged, this, &HeldKeys::forget);
}

HeldKeys::~HeldKeys() {
  qApp->removeEventFilter(this);
}

void HeldKeys::forget() {
  m_down.clear();
  m_awaitsPress.reset();
}

// What comes from the keyboard reaches the window of the display first, and each once.
bool HeldKeys::eventFilter(QObject* watched, QEvent* event) {
  if (!watched->isWindowType())
    return false;
  const QEvent::Type type = event->type();
  if (type == QEvent::KeyRelease) {
    letGo(static_cast<const QKeyEvent&>(*event));
    return false;
  }
  if (type != QEvent::KeyPress && type != QEvent::ShortcutOverride)
    return false;
  auto& key = static_cast<QKeyEvent&>(*event);
  const bool isOverride = type == QEvent::ShortcutOverride;
  if (!isHeld(key, isOverride) || mayRepeat(key) || isTextField(QApplication::focusWidget()))
    return false;
  key.accept(); // no shortcut either
  return true;
}

bool HeldKeys::isHeld(const QKeyEvent& key, bool isOverride) {
  const quint32 number = numberOf(key);
  if (!isOverride && m_awaitsPress == number) { // the press that follows its own shortcut
    m_awaitsPress.reset();
    return key.isAutoRepeat();
  }
  const bool isSoon = m_lastLetGo == number && key.timestamp() - m_lastLetGoAt < kLeastGap;
  const auto down = m_down.constFind(number);
  const bool isDown = down != m_down.constEnd() && key.timestamp() - *down < kLongestRepeat;
  const bool isHeld = key.isAutoRepeat() || isDown || isSoon;
  m_down[number] = key.timestamp();
  m_awaitsPress.reset();
  if (isOverride && !isHeld)
    m_awaitsPress = number;
  return isHeld;
}

void HeldKeys::letGo(const QKeyEvent& key) {
  if (key.isAutoRepeat())
    return;
  const quint32 number = numberOf(key);
  m_down.remove(number);
  m_lastLetGo = number;
  m_lastLetGoAt = key.timestamp();
}

} // namespace hooptab
