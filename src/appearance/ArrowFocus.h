// Many buttons that are one stop of the Tab key: inside, the arrow keys lead from one to the next that lies
// there, and Tab comes back to the one that was left.
#pragma once

#include <QObject>

#include <vector>

class QWidget;

namespace hooptab {

class ArrowFocus : public QObject {
  Q_OBJECT
 public:
  // The members live as long as their parent, which owns this.
  ArrowFocus(std::vector<QWidget*> members, QWidget* parent);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  [[nodiscard]] QWidget* neighbour(const QWidget& from, int key) const; // or null
  void makeStop(QWidget& member);
  void keepReachable();

  std::vector<QWidget*> m_members;
  QWidget* m_stop = nullptr;
};

} // namespace hooptab
