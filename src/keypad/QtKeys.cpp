#include "keypad/QtKeys.h"

#include "appearance/relabel.h"
#include "keypad/KeyCodes.h"

#include <QAbstractSpinBox>
#include <QKeyEvent>
#include <QKeySequence>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextEdit>

#include <algorithm>

namespace hooptab {

namespace {

enum class Where { Anywhere, Main, Keypad };
struct KeyRow {
  Qt::Key key;
  int code;
  Where where;
};
// Of two rows with one code the first is the way back.
constexpr KeyRow kRows[] = {
    {Qt::Key_Plus, 107, Where::Keypad},
    {Qt::Key_Minus, 109, Where::Keypad},
    {Qt::Key_Asterisk, 106, Where::Keypad},
    {Qt::Key_Slash, 111, Where::Keypad},
    {Qt::Key_Period, 110, Where::Keypad},
    {Qt::Key_Comma, 110, Where::Keypad}, // keyboards with a decimal comma
    {Qt::Key_Equal, 146, Where::Keypad},
    {Qt::Key_Enter, 13, Where::Anywhere},
    {Qt::Key_Return, 13, Where::Anywhere},
    {Qt::Key_Backspace, 8, Where::Anywhere},
    {Qt::Key_Tab, 9, Where::Anywhere},
    {Qt::Key_Backtab, 9, Where::Anywhere},
    {Qt::Key_Escape, 27, Where::Anywhere},
    {Qt::Key_Space, 32, Where::Anywhere},
    {Qt::Key_NumLock, 144, Where::Anywhere},
    {Qt::Key_ScrollLock, 145, Where::Main},
    {Qt::Key_Pause, 19, Where::Main},
    {Qt::Key_Insert, 45, Where::Anywhere},
    {Qt::Key_Delete, 46, Where::Anywhere},
    {Qt::Key_End, 35, Where::Anywhere},
    {Qt::Key_Down, 40, Where::Anywhere},
    {Qt::Key_PageDown, 34, Where::Anywhere},
    {Qt::Key_Left, 37, Where::Anywhere},
    {Qt::Key_Clear, 12, Where::Anywhere},
    {Qt::Key_Right, 39, Where::Anywhere},
    {Qt::Key_Home, 36, Where::Anywhere},
    {Qt::Key_Up, 38, Where::Anywhere},
    {Qt::Key_PageUp, 33, Where::Anywhere},
    {Qt::Key_Semicolon, 186, Where::Main},
    {Qt::Key_Plus, 187, Where::Main},
    {Qt::Key_Equal, 187, Where::Main},
    {Qt::Key_Comma, 188, Where::Main},
    {Qt::Key_Minus, 189, Where::Main},
    {Qt::Key_Period, 190, Where::Main},
    {Qt::Key_Slash, 191, Where::Main},
};
constexpr int kFirstKeypadDigit = 96;
constexpr int kFirstFunctionKey = 112;

} // namespace

KeyPress keyPressOf(const QKeyEvent& event) {
  const int key = event.key();
  const bool isKeypad = event.modifiers().testFlag(Qt::KeypadModifier);
  KeyPress press{0, isKeypad, event.modifiers().testFlag(Qt::ShiftModifier)};
  if ((event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) != Qt::NoModifier)
    return press;
  if (key >= Qt::Key_0 && key <= Qt::Key_9)
    press.code = key - Qt::Key_0 + (isKeypad ? kFirstKeypadDigit : '0');
  else if (key >= Qt::Key_A && key <= Qt::Key_Z)
    press.code = key - Qt::Key_A + 'A';
  else if (key >= Qt::Key_F1 && key <= Qt::Key_F12)
    press.code = key - Qt::Key_F1 + kFirstFunctionKey;
  const auto row = std::ranges::find_if(kRows, [&](const KeyRow& each) {
    return each.key == key && (each.where == Where::Anywhere || (each.where == Where::Keypad) == isKeypad);
  });
  if (row != std::end(kRows))
    press.code = row->code;
  return press;
}

QtKey qtKeyOf(int code) {
  if (code >= '0' && code <= '9')
    return {static_cast<Qt::Key>(Qt::Key_0 + code - '0'), false};
  if (code >= kFirstKeypadDigit && code < kFirstKeypadDigit + 10)
    return {static_cast<Qt::Key>(Qt::Key_0 + code - kFirstKeypadDigit), true};
  if (code >= 'A' && code <= 'Z')
    return {static_cast<Qt::Key>(Qt::Key_A + code - 'A'), false};
  if (code >= kFirstFunctionKey && code < kFirstFunctionKey + 12)
    return {static_cast<Qt::Key>(Qt::Key_F1 + code - kFirstFunctionKey), false};
  const auto* row = std::ranges::find(kRows, code, &KeyRow::code);
  return row == std::end(kRows) ? QtKey() : QtKey{row->key, row->where == Where::Keypad};
}

QString keyName(int code, const Texts& texts) {
  if (code == keys::kBackspace) // which the toolkit names in French as if it cleared all
    return toQt(texts.text(Text::BackspaceName));
  const QtKey key = qtKeyOf(code);
  if (key.key == Qt::Key_unknown)
    return code == 0 ? QString() : QString::number(code);
  return QKeySequence(key.key).toString(QKeySequence::NativeText);
}

bool isTextField(const QWidget* widget) {
  return qobject_cast<const QLineEdit*>(widget) != nullptr ||
         qobject_cast<const QAbstractSpinBox*>(widget) != nullptr ||
         qobject_cast<const QTextEdit*>(widget) != nullptr ||
         qobject_cast<const QPlainTextEdit*>(widget) != nullptr;
}

} // namespace hooptab
