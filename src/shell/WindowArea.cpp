#include "shell/WindowArea.h"

#include "appearance/relabel.h"
#include "scorecard/frmVIEW.h"
#include "shell/WindowMemory.h"

#include <QFileInfo>
#include <QMdiSubWindow>

namespace hooptab {

WindowArea::WindowArea(WindowMemory& memory, QWidget* parent) : QMdiArea(parent), m_memory(memory) {
  setBackground(Qt::NoBrush); // that of the window, in every look
  setFrameShape(QFrame::NoFrame);
}

void WindowArea::add(ChildWindow& child) {
  QMdiSubWindow* window = addSubWindow(&child);
  connect(&child, &QWidget::windowTitleChanged, this, &WindowArea::changed);
  window->setAttribute(Qt::WA_DeleteOnClose);
  const std::string name = fromQt(child.objectName());
  child.restoreArrangement(QByteArray::fromBase64(QByteArray::fromStdString(m_memory.layout(name))));
  connect(&child, &ChildWindow::closing, this, [this, &child, name] {
    if (const QByteArray arrangement = child.arrangement(); !arrangement.isEmpty())
      m_memory.rememberLayout(name, arrangement.toBase64().toStdString());
  });
  // Queued: by then the area has forgotten the window around it, whose own connections it cuts.
  connect(&child, &QObject::destroyed, this, &WindowArea::changed, Qt::QueuedConnection);
  emit added(child);
  if (subWindowList().size() == 1)
    m_isFilled = true;
  dress(*window);
  emit changed();
}

void WindowArea::dress(QMdiSubWindow& window) const {
  window.setWindowFlag(Qt::FramelessWindowHint, m_isFilled);
  if (m_isFilled)
    window.showMaximized();
  else
    window.showNormal();
}

void WindowArea::fill() {
  m_isFilled = true;
  QMdiSubWindow* const front = currentSubWindow();
  for (QMdiSubWindow* window : subWindowList())
    dress(*window);
  setActiveSubWindow(front);
}

void WindowArea::frame() {
  m_isFilled = false;
  QMdiSubWindow* const front = currentSubWindow();
  for (QMdiSubWindow* window : subWindowList())
    dress(*window);
  setActiveSubWindow(front);
}

void WindowArea::bringToFront(ChildWindow& child) {
  auto* window = qobject_cast<QMdiSubWindow*>(child.parentWidget());
  if (window->isMinimized())
    window->showNormal();
  setActiveSubWindow(window);
}

QList<ChildWindow*> WindowArea::windows() const {
  QList<ChildWindow*> windows;
  for (const QMdiSubWindow* window : subWindowList()) {
    if (auto* child = qobject_cast<ChildWindow*>(window->widget()))
      windows << child;
  }
  return windows;
}

ChildWindow* WindowArea::front() const {
  const QMdiSubWindow* window = currentSubWindow();
  return window == nullptr ? nullptr : qobject_cast<ChildWindow*>(window->widget());
}

frmVIEW* WindowArea::scorecardOf(const QString& path) const {
  const QFileInfo wanted(path);
  for (ChildWindow* child : windows()) {
    auto* view = qobject_cast<frmVIEW*>(child);
    if (view != nullptr && QFileInfo(view->path()) == wanted)
      return view;
  }
  return nullptr;
}

} // namespace hooptab
