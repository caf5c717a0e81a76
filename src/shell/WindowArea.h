// The area of the main window with the windows that are open in it: puts them in as they were left, finds
// them, brings them to the front. What they are for is others' business.
#pragma once

#include "appearance/ChildWindow.h"

#include <QList>
#include <QMdiArea>

#include <string>

namespace hooptab {

class WindowMemory;
class frmVIEW;

class WindowArea : public QMdiArea {
  Q_OBJECT
 public:
  WindowArea(WindowMemory& memory, QWidget* parent); // memory must outlive it

  // Owns it from now on. Fills the area, unless the windows stand side by side.
  void add(ChildWindow& child);
  void fill(); // each of them the whole area, without a frame
  // Side by side, or one behind the other, each with a title to take hold of. What has no room is scrolled
  // to: the area never asks for more than it has.
  void tile();
  void cascade();
  void bringToFront(ChildWindow& child);

  [[nodiscard]] QList<ChildWindow*> windows() const;
  [[nodiscard]] ChildWindow* front() const;                      // or null
  [[nodiscard]] frmVIEW* scorecardOf(const QString& path) const; // or null
  // The window of a kind of which one is open at a time, or null.
  template <class Window>
  [[nodiscard]] Window* first() const {
    for (ChildWindow* child : windows()) {
      if (auto* window = qobject_cast<Window*>(child))
        return window;
    }
    return nullptr;
  }

 signals:
  void added(hooptab::ChildWindow& child); // before it is shown
  void changed();                          // one was shown, or has gone and is forgotten

 private:
  void dress(QMdiSubWindow& window) const;
  void setFilled(bool isFilled);
  void restoreSize(QMdiSubWindow& window, const std::string& name);

  WindowMemory& m_memory;
  bool m_isFilled = true;
};

} // namespace hooptab
