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
  virtual bool mayClose() { return true; } // asks first, where something would be lost

 signals:
  void closing();
  void reported(const QString& message); // for the status bar

 protected:
  void closeEvent(QCloseEvent* event) override {
    event->setAccepted(mayClose());
    if (event->isAccepted())
      emit closing();
  }
};

} // namespace hooptab
