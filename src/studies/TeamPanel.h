// A team over the selected games: its balance, the margins of its games in order, its shots of the
// season, the last games, how won and lost games differ, and which players do well together.
#pragma once

#include "season/GameSeries.h"
#include "season/Season.h"
#include "season/SeasonTableView.h"

#include <QWidget>

#include <memory>

class QComboBox;
class QLabel;

namespace hooptab {

class HexagonChart;
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
  QWidget* makeShots();
  QWidget* makeTables();
  QWidget* makeTogether();
  void showTeam();
  void showTables();
  void showTogether();
  [[nodiscard]] SeasonId team() const;

  const Texts& m_texts;
  std::shared_ptr<const Season> m_season;
  GameSeries m_margins;
  QComboBox* m_team;
  QLabel* m_balance;
  SeriesView* m_picture;
  HexagonChart* m_hexagons = nullptr;
  ZoneChart* m_shots = nullptr;
  std::vector<std::size_t> m_games; // of the table of games, in the catalogue
  SeasonTableView* m_lastGames;
  SeasonTableView* m_splits;
  QComboBox* m_together; // fives, trios, pairs
  SeasonTableView* m_combinations;
};

} // namespace hooptab
