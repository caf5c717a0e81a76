// The points of both teams as the totals make them, beside the final score that the user may type from the
// score sheet: says whether they agree, or how much is missing. Nothing of it is kept.
#pragma once

#include "game/Side.h"

#include <QWidget>

#include <array>

class QLabel;
class QLineEdit;

namespace hooptab {

class ManualGame;
class Texts;

class ScoreCheck : public QWidget {
  Q_OBJECT
 public:
  // Both must outlive it.
  ScoreCheck(const ManualGame& game, const Texts& texts, QWidget* parent = nullptr);

  void beginGame(); // nothing is typed yet
  void showPoints();

 private:
  struct TeamWidgets {
    QLabel* team;
    QLabel* points;
    QLineEdit* typed;
    QLabel* verdict;
  };
  const ManualGame& m_game;
  const Texts& m_texts;
  PerSide<TeamWidgets> m_sides = {};
};

} // namespace hooptab
