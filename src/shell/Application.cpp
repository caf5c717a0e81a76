#include "shell/Application.h"

#include <exception>
#include <utility>

namespace hooptab {

bool Application::notify(QObject* receiver, QEvent* event) {
  try {
    return QApplication::notify(receiver, event);
  } catch (const std::exception& failure) {
    tell(QString::fromLocal8Bit(failure.what()));
  }
  return false;
}

void Application::tell(const QString& what) {
  if (!m_handler || m_isTelling)
    return;
  m_isTelling = true;
  m_handler(what);
  m_isTelling = false;
}

} // namespace hooptab
