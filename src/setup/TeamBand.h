// The head of a side's card, in the team's colour: visitor or home, the team's name, and the choice of the
// main team.
#pragma once

#include <QRadioButton>
#include <QWidget>

namespace hooptab {

class ElidedLabel;
class PlainLabel;

// A radio button on any colour: what frames it with the focus is of the colour of its text.
class BandChoice : public QRadioButton {
 public:
  using QRadioButton::QRadioButton;

 protected:
  void paintEvent(QPaintEvent* event) override;
};

class TeamBand : public QWidget {
 public:
  // `caption` is the number of the side's text. The choice becomes a part of the band.
  TeamBand(int caption, BandChoice& choice, QWidget* parent);

  void showTeam(const QString& name, const QColor& colour); // an invalid colour: no team

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  PlainLabel* m_side;
  ElidedLabel* m_name;
  QColor m_colour;
};

} // namespace hooptab
