// The one table between the window system's keys and virtual-key codes, both ways: the upper row and the
// keypad apart, Num Lock on and off.
#pragma once

#include "keypad/KeypadInput.h"

#include <QString>
#include <QtGlobal>

class QKeyEvent;
class QWidget;

namespace hooptab {

// Code 0 for a key that has none here (modifiers, keys of the system) and with Ctrl, Alt or Meta.
[[nodiscard]] KeyPress keyPressOf(const QKeyEvent& event);

struct QtKey {
  Qt::Key key = Qt::Key_unknown;
  bool isKeypad = false;
  friend bool operator==(const QtKey&, const QtKey&) = default;
};
[[nodiscard]] QtKey qtKeyOf(int code);
// What is printed on the key, in the language in use: "7", "+", "Enter". Empty for no key.
[[nodiscard]] QString keyName(int code, const Texts& texts);

// Where one types a text: keys belong there. Null is none.
[[nodiscard]] bool isTextField(const QWidget* widget);

} // namespace hooptab
