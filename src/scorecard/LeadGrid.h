// For how long each team led and the score was tied, and how often that came about.
#pragma once

#include "scorecard/Scoreboard.h"

#include <QWidget>

#include <array>

class QLabel;

namespace hooptab {

class LeadGrid : public QWidget {
  Q_OBJECT

 public:
  explicit LeadGrid(QWidget* parent = nullptr);

  void showLead(const Scoreboard& board, const Texts& texts);

 private:
  struct Row {
    QLabel* name = nullptr;
    QLabel* time = nullptr;
    QLabel* times = nullptr;
  };
  std::array<Row, 3> m_rows; // in the order of LeadState
};

} // namespace hooptab
