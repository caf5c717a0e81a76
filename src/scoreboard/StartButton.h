// The clock's button: what a press will do, the key that does the same, and while it is locked the seconds
// until it can. Only the call to act is coloured. Acts on the press.
#pragma once

#include <QPushButton>

namespace hooptab {

class StartButton : public QPushButton {
  Q_OBJECT
 public:
  explicit StartButton(QWidget* parent);

  enum class Shown { Start, Stop, Locked, Nothing };
  void show(Shown what, const QString& words, bool isRefused);
  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  Shown m_shown = Shown::Nothing;
  bool m_isRefused = false;
};

} // namespace hooptab
