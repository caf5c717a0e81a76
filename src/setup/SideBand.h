// The head of a side's card, in the team's colour: visitor or home, the team's name, and the choice of the
// main team.
#pragma once

#include "appearance/ColourBand.h"
#include "settings/Text.h"

#include <QRadioButton>

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

class SideBand : public ColourBand {
 public:
  // `caption` is the side's. The choice becomes a part of the band.
  SideBand(Text caption, BandChoice& choice, QWidget* parent);

  void showTeam(const QString& name, const QColor& colour); // an invalid colour: no team

 private:
  PlainLabel* m_side;
  ElidedLabel* m_name;
};

} // namespace hooptab
