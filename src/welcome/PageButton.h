// What the buttons of the start page have in common: they paint themselves, and Enter presses them.
#pragma once

#include <QAbstractButton>

namespace hooptab {

class PageButton : public QAbstractButton {
  Q_OBJECT
 public:
  explicit PageButton(QWidget* parent = nullptr);

 protected:
  enum class Shape { Card, Row };
  // Ground and border by what the mouse and the keys do.
  void drawGround(QPainter& painter, Shape shape);
  void keyPressEvent(QKeyEvent* event) override;
  void changeEvent(QEvent* event) override;
};

} // namespace hooptab
