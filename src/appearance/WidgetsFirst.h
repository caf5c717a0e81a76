// A window's widgets refer to its members, but QObject deletes them after those are gone, and on their way
// they still lose the focus, hide, and tell so. As the last member of a window this ends them while all else
// is there, and the window no longer hears of it.
#pragma once

#include <QWidget>

namespace hooptab {

class WidgetsFirst {
 public:
  explicit WidgetsFirst(QWidget& window) : m_window(window) {}
  ~WidgetsFirst() {
    for (QWidget* widget : m_window.findChildren<QWidget*>())
      widget->disconnect(&m_window);
    qDeleteAll(m_window.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly));
  }
  WidgetsFirst(const WidgetsFirst&) = delete;
  WidgetsFirst& operator=(const WidgetsFirst&) = delete;

 private:
  QWidget& m_window;
};

} // namespace hooptab
