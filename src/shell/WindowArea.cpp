#include "shell/WindowArea.h"

#include "appearance/relabel.h"
#include "review/frmVIEW.h"
#include "shell/WindowMemory.h"
#include "storage/Module1.h"

#include <QFileInfo>
#include <QMdiSubWindow>
#include <algorithm>
#include <cmath>

namespace hooptab {

namespace {

constexpr const char* kSize = ".size"; // behind a window's name: that of its frame

} // namespace

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
  restoreSize(*window, name);
  connect(&child, &ChildWindow::closing, this, [this, &child, window, name] {
    if (!window->isMaximized() && !window->isMinimized())
      m_memory.rememberLayout(name + kSize,
                              fromQt(QStringLiteral("%1x%2").arg(window->width()).arg(window->height())));
    if (const QByteArray arrangement = child.arrangement(); !arrangement.isEmpty())
      m_memory.rememberLayout(name, arrangement.toBase64().toStdString());
  });
  // Queued: by then the area has forgotten the window around it, whose own connections it cuts.
  connect(&child, &QObject::destroyed, this, &WindowArea::changed, Qt::QueuedConnection);
  emit added(child);
  if (subWindowList().size() == 1)
    setFilled(true);
  else
    dress(*window);
  emit changed();
}

void WindowArea::restoreSize(QMdiSubWindow& window, const std::string& name) {
  const std::string text = m_memory.layout(name + kSize);
  const QSize size(Module1::leadingNumber(Module1::field(text, 1, 'x')),
                   Module1::leadingNumber(Module1::field(text, 2, 'x')));
  if (!size.isEmpty())
    window.resize(size.boundedTo(viewport()->size()));
}

void WindowArea::dress(QMdiSubWindow& window) const {
  window.setWindowFlag(Qt::FramelessWindowHint, m_isFilled);
  if (m_isFilled)
    window.showMaximized();
  else
    window.showNormal();
}

void WindowArea::setFilled(bool isFilled) {
  m_isFilled = isFilled;
  // With bars, the area does not have to be as large as the windows in it.
  const Qt::ScrollBarPolicy bars = isFilled ? Qt::ScrollBarAlwaysOff : Qt::ScrollBarAsNeeded;
  setHorizontalScrollBarPolicy(bars);
  setVerticalScrollBarPolicy(bars);
  QMdiSubWindow* const front = currentSubWindow();
  for (QMdiSubWindow* window : subWindowList())
    dress(*window);
  setActiveSubWindow(front);
}

void WindowArea::fill() {
  setFilled(true);
}

void WindowArea::tile() {
  setFilled(false);
  const QList<QMdiSubWindow*> windows = subWindowList();
  const int count = static_cast<int>(windows.size());
  const int columns = static_cast<int>(std::ceil(std::sqrt(count)));
  const QRect room = viewport()->rect();
  for (int row = 0, top = 0, first = 0; first < count; ++row, first += columns) {
    const int rows = (count + columns - 1) / columns;
    const int inRow = std::min(columns, count - first);
    int height = room.height() / rows;
    int left = 0;
    for (int column = 0; column < inRow; ++column) {
      QMdiSubWindow* const window = windows[first + column];
      const QSize size = QSize(room.width() / inRow, height).expandedTo(window->minimumSizeHint());
      window->setGeometry({{left, top}, size});
      left += size.width();
      height = std::max(height, size.height());
    }
    top += height;
  }
}

void WindowArea::cascade() {
  setFilled(false);
  cascadeSubWindows();
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
