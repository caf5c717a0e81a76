// The head of the scorecard: both teams with their score; between them state and clock of the game, points
// and fouls by period, and who led how long. Only lays out what Scoreboard says.
#pragma once

#include "game/Side.h"
#include "scorecard/Scoreboard.h"

#include <QWidget>

#include <array>

class QLabel;

namespace hooptab {

class LeadGrid;
class PeriodGrid;
class TeamPlate;

class ScoreboardStrip : public QWidget {
  Q_OBJECT

 public:
  explicit ScoreboardStrip(QWidget* parent = nullptr);

  void showBoard(const Scoreboard& board, const Texts& texts);

 private:
  PerSide<TeamPlate*> m_plates;
  QLabel* m_clock;
  QLabel* m_period;
  QLabel* m_status;
  PeriodGrid* m_points;
  PeriodGrid* m_fouls;
  LeadGrid* m_lead;
};

} // namespace hooptab
