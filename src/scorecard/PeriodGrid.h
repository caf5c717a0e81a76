// A number for each team and period, in two rows under the periods' names: points or team fouls. With or
// without a total.
#pragma once

#include "game/Side.h"
#include "scorecard/Scoreboard.h"

#include <QWidget>

#include <array>
#include <vector>

class QGridLayout;
class QLabel;

namespace hooptab {

class PeriodGrid : public QWidget {
  Q_OBJECT

 public:
  enum class Content { Points, Fouls };

  // `title` stands before the periods' names, where there is one. Labels are named after `name`:
  // "lblPOINTS(0,1)" is team 0 in period 1; period 0 is the total.
  PeriodGrid(Content content, const QString& name, Text title, QWidget* parent = nullptr);

  void showPeriods(const Scoreboard& board);

 private:
  struct Column {
    QLabel* header = nullptr;
    PerSide<QLabel*> numbers = {};
  };
  Column addColumn(QGridLayout& layout, const QString& name, int period, int place);
  void fill(const Column& column, const Scoreboard::Period& period);

  const Content m_content;
  PerSide<QLabel*> m_teams = {};
  std::vector<Column> m_periods; // as many as a game can show; those not needed are hidden
  Column m_total;
};

} // namespace hooptab
