#include "keypad/KeyField.h"

#include "appearance/Theme.h"
#include "keypad/KeyCodes.h"
#include "keypad/QtKeys.h"

#include <QKeyEvent>

namespace hooptab {

namespace {

constexpr int kFirstFunctionKey = 112;
constexpr int kLastFunctionKey = 123;

// 0 for a key that is not taken.
int codeIn(const QKeyEvent& event) {
  const int code = keyPressOf(event).code;
  const bool isKept = code == keys::kTab || code == keys::kEscape || code == keys::kSpace ||
                      (code >= kFirstFunctionKey && code <= kLastFunctionKey);
  return isKept ? 0 : code;
}

} // namespace

KeyField::KeyField(const QString& name, QWidget* parent) : QLineEdit(parent) {
  setObjectName(name);
  setReadOnly(true);
  setContextMenuPolicy(Qt::NoContextMenu);
}

void KeyField::showKey(const QString& text, bool isWrong) {
  setText(text);
  setCursorPosition(0);
  QPalette colours;
  if (isWrong) {
    colours.setColor(QPalette::Base, Theme::missed());
    colours.setColor(QPalette::Text, textOn(Theme::missed()));
  }
  setPalette(colours);
}

void KeyField::focusInEvent(QFocusEvent* event) {
  QLineEdit::focusInEvent(event);
  emit focused();
}

bool KeyField::event(QEvent* event) {
  const bool isPress = event->type() == QEvent::KeyPress;
  if (isPress || event->type() == QEvent::ShortcutOverride) {
    auto& key = static_cast<QKeyEvent&>(*event);
    if (const int code = codeIn(key); code != 0) {
      key.accept();
      if (isPress && !key.isAutoRepeat())
        emit keyPressed(code);
      return true;
    }
  }
  return QLineEdit::event(event);
}

} // namespace hooptab
