// A team over the selected games: its balance, the margins of its games in order, its shots of the season,
// the last games, how won and lost games differ, and which players do well together. Asks for its scouting
// sheet.
#pragma once

#include "season/GameSeries.h"
#include "season/Season.h"
#include "season/SeasonTableView.h"

#include <QWidget>

#include <memory>
#include <optional>
#include <vector>

class QComboBox;
class QLabel;
class QPushButton;

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
  [[nodiscard]] std::optional<SeasonId> team() const;   // nothing before statistics were generated
  [[nodiscard]] std::optional<SeasonId> reader() const; // for whose coach the scouting sheet is
  void relabelPanel();
  void applyColours();

 signals:
  void gameAsked(std::size_t game); // its place in the catalogue
  void scoutAsked();

 private:
  QWidget* makeShots();
  QWidget* makeScouting();
  QWidget* makeTables();
  QWidget* makeTogether();
  void showTeam();
  void showTables();
  void showTogether();
  void showReaders();

  const Texts& m_texts;
  std::shared_ptr<const Season> m_season;
  GameSeries m_margins;
  QComboBox* m_team;
  QLabel* m_balance;
  QComboBox* m_reader = nullptr; // nobody first
  QPushButton* m_scout = nullptr;
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
