// A box that is not typed in: it takes the key that is pressed, and says so. Tab, Esc, Space and the function
// keys keep what they mean in the window.
#pragma once

#include <QLineEdit>

namespace hooptab {

class KeyField : public QLineEdit {
  Q_OBJECT
 public:
  explicit KeyField(const QString& name, QWidget* parent);

  void showKey(const QString& text, bool isWrong);

 signals:
  void keyPressed(int code); // virtual-key code
  void focused();

 protected:
  bool event(QEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
};

} // namespace hooptab
