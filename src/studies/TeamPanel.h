// A team over the selected games: its balance, the margins of its games in order, and its season shot chart.
#pragma once

#include "season/GameSeries.h"
#include "season/Season.h"

#include <QWidget>

#include <memory>

class QComboBox;
class QLabel;

namespace hooptab {

class SeriesView;
class ZoneChart;

class TeamPanel : public QWidget {
  Q_OBJECT

 public:
  explicit TeamPanel(const Texts& texts, QWidget* parent = nullptr);

  void showSeason(std::shared_ptr<const Season> season); // null: none yet
  void chooseTeam(SeasonId team);
  void relabelPanel();
  void applyColours();

 signals:
  void gameAsked(std::size_t game); // its place in the catalogue

 private:
  void showTeam();

  const Texts& m_texts;
  std::shared_ptr<const Season> m_season;
  GameSeries m_margins;
  QComboBox* m_team;
  QLabel* m_balance;
  SeriesView* m_picture;
  ZoneChart* m_shots;
};

} // namespace hooptab
