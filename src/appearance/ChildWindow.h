// What the main window asks of every window that opens inside it.
#pragma once

#include <QByteArray>
#include <QCloseEvent>
#include <QWidget>

namespace hooptab {

class ChildWindow : public QWidget {
  Q_OBJECT
 public:
  using QWidget::QWidget;

  virtual void relabelWindow() = 0; // the language has changed
  virtual void applyColours() = 0;  // the theme, the court's colours or the labels of statistics have changed
  // How the user has arranged its parts (splitters, columns), remembered under its object name.
  virtual QByteArray arrangement() const { return {}; }
  virtual void restoreArrangement(const QByteArray&) {}
  // For closing several windows: each is asked once, and closes only when all of them agree.
  bool agreesToClose() {
    m_agrees = mayClose();
    return m_agrees;
  }
  void stay() { m_agrees = false; }

 signals:
  void closing();
  void reported(const QString& message); // for the status bar

 protected:
  virtual bool mayClose() { return true; } // asks first, where something would be lost
  void closeEvent(QCloseEvent* event) override {
    event->setAccepted(m_agrees || mayClose());
    if (event->isAccepted())
      emit closing();
  }

 private:
  bool m_agrees = false;
};

} // namespace hooptab
