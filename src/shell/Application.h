// The application object, which lets no failure in one event end the program: what was being done is given
// up, somebody is told, and the next event is handled.
#pragma once

#include <QApplication>

#include <functional>

namespace hooptab {

class Application : public QApplication {
  Q_OBJECT
 public:
  using QApplication::QApplication;

  // Told of what an event has failed with. One that fails itself is not asked again.
  using FailureHandler = std::function<void(const QString& what)>;
  void setFailureHandler(FailureHandler handler) { m_handler = std::move(handler); }

  bool notify(QObject* receiver, QEvent* event) override;

 private:
  void tell(const QString& what);

  FailureHandler m_handler;
  bool m_isTelling = false;
};

} // namespace hooptab
