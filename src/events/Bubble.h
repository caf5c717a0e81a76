// A frame that lies over the live window with an arrow to the panel that it is about, as wide as a panel:
// what lies beside it stays in reach. Holds what others put into it.
#pragma once

#include <QTimer>
#include <QWidget>

namespace hooptab {

class Bubble : public QWidget {
 public:
  explicit Bubble(QWidget* parent);

 protected:
  // On the panel of a neighbour: the right one, and of the last the left one; inside `room`, both in global
  // coordinates. Without a panel in the middle of the room. Needs a layout.
  void placeBeside(const QRect& panel, const QRect& room);
  void keepInParent(); // after another height
  // Widths between the margins: of a panel, and of the usual one where there is none.
  [[nodiscard]] int widthFor(int panel) const;
  void flash();
  void paintEvent(QPaintEvent* event) override;

 private:
  enum class Points { Nowhere, Left, Right };
  Points m_points = Points::Nowhere;
  int m_pointsAt = 0; // height in the parent
  QTimer m_flash;
};

} // namespace hooptab
