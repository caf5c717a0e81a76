// Which team plays on which side of the court: a little court in their colours, the name of the one on the
// left, and the button that exchanges them. A click on any of the three asks for it.
#pragma once

#include <QColor>
#include <QWidget>

#include <array>

class QLabel;
class QToolButton;

namespace hooptab {

class SideSwitch : public QWidget {
  Q_OBJECT
 public:
  SideSwitch(QToolButton* button, QWidget* parent);

  // Left and right, as they play now.
  void showSides(const QString& left, const std::array<QColor, 2>& colours, const QString& hint);
  void setOffered(bool isOffered); // the button stands out: now is the time

 signals:
  void asked();

 protected:
  void mousePressEvent(QMouseEvent* event) override;

 private:
  class Court;
  Court* m_court;
  QToolButton* m_button;
  QLabel* m_name;
};

} // namespace hooptab
