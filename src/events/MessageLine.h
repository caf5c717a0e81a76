// One line that says what the window has done or not done with what was just pressed, for some seconds, with
// the one thing that can be done about it, by a click or its key. A newer one takes its place.
#pragma once

#include <QFrame>
#include <QTimer>

#include <functional>

class QToolButton;

namespace hooptab {

class ElidedLabel;

class MessageLine : public QFrame {
  Q_OBJECT
 public:
  explicit MessageLine(QWidget* parent);

  static constexpr int kKey = Qt::Key_F2; // carries out what is offered

  void say(const QString& words);
  void offer(const QString& words, const QString& action, std::function<void()> carryOut);
  void carryOut(); // what is offered, if anything is
  void withdraw();
  void applyColours();

 signals:
  void changed(); // shown, or gone

 private:
  ElidedLabel* m_words;
  QToolButton* m_action;
  std::function<void()> m_carryOut;
  QTimer m_end;
};

} // namespace hooptab
