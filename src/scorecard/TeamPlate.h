// One team at the head of the scorecard: its name and score on its own colour, the score beside the middle.
#pragma once

#include "game/Side.h"
#include "scorecard/Scoreboard.h"

#include <QWidget>

class QLabel;

namespace hooptab {

class ElidedLabel;

class TeamPlate : public QWidget {
  Q_OBJECT

 public:
  explicit TeamPlate(Side team, QWidget* parent = nullptr);

  // `side` says which side it is: visitors or home.
  void showTeam(const Scoreboard::Team& team, const QString& side);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  ElidedLabel* m_name;
  ElidedLabel* m_side; // with the abbreviation
  QLabel* m_score;
};

} // namespace hooptab
