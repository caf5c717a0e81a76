// The head of a card in a colour of its own, a team's, with text that reads on it. Round above alone: the
// card goes on below. What stands in it is its owner's.
#pragma once

#include <QColor>
#include <QWidget>

namespace hooptab {

class ColourBand : public QWidget {
  Q_OBJECT
 public:
  using QWidget::QWidget;

  void setColour(const QColor& colour); // also when the look is another; an invalid one: no team

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QColor m_colour;
};

} // namespace hooptab
