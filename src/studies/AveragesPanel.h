// The season table of the players, or of the lines, in its instances: totals, per game, per minute, per 40
// minutes. One is shown at a time; the row that is chosen in one is chosen in the others.
#pragma once

#include "season/Season.h"
#include "season/SeasonTableView.h"
#include "settings/Settings.h"

#include <array>

class QLabel;
class QStackedWidget;

namespace hooptab {

class ViewSwitch;

class AveragesPanel : public QWidget {
  Q_OBJECT

 public:
  AveragesPanel(SeasonTable kind, const Settings& settings, const Texts& texts, QWidget* parent = nullptr);

  void showSeason(std::shared_ptr<const Season> season); // null: none yet
  void relabelPanel();
  const std::array<SeasonTableView*, kSeasonViewCount>& tables() const { return m_tables; }
  SeasonTableView& table() const;

 signals:
  void personAsked(const SeasonRow& row);

 private:
  void showColumns();
  void showView(SeasonView view);
  void showTexts();

  const SeasonTable m_kind;
  const Settings& m_settings;
  const Texts& m_texts;
  std::shared_ptr<const Season> m_season;
  ViewSwitch* m_switch;
  QLabel* m_scope;
  QLabel* m_warning;
  QStackedWidget* m_stack;
  std::array<SeasonTableView*, kSeasonViewCount> m_tables;
};

} // namespace hooptab
