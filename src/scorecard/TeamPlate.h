// One team at the head of the scorecard: its name and score on its own colour.
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
  // `side` says which side it is.
  TeamPlate(Side team, Text side, QWidget* parent = nullptr);

  void showTeam(const Scoreboard::Team& team);

 private:
  QLabel* m_side;
  ElidedLabel* m_name;
  QLabel* m_abbreviation;
  QLabel* m_score;
};

} // namespace hooptab
