// The first page of a season: the table of the league, and beside it the last games, those in which something
// cannot be so, and who leads. The table needs the list of games alone; leaders come with the statistics.
#pragma once

#include "season/Season.h"
#include "season/SeasonTableView.h"
#include "season/Standings.h"
#include "settings/Settings.h"

#include <QWidget>

#include <array>
#include <memory>
#include <vector>

class QCheckBox;
class QLabel;

namespace hooptab {

class RowList;

class StandingsPanel : public QWidget {
  Q_OBJECT

 public:
  StandingsPanel(const Settings& settings, const Texts& texts, QWidget* parent = nullptr);

  // `games` are places in the catalogue.
  void showGames(std::shared_ptr<const GameCatalogue> catalogue, std::vector<std::size_t> games);
  void showSeason(std::shared_ptr<const Season> season); // null: none yet
  void relabelPanel();
  SeasonTableView& table() const { return *m_table; }
  bool countsPractice() const;
  void countPractice(bool counts);

 signals:
  void gameAsked(std::size_t game); // its place in the catalogue
  void teamAsked(SeasonId team);
  void personAsked(const SeasonRow& row);

 private:
  static constexpr std::size_t kBoards = 3; // points, rebounds, assists
  struct Board {
    QLabel* title = nullptr;
    RowList* list = nullptr;
  };
  QLayout* makeHead();
  QWidget* makeSide();
  void count();
  void showTable();
  void fitTable();
  void showLastGames();
  void showToCheck();
  void showLeaders();
  [[nodiscard]] QString dayOf(const ListedGame& game) const;

  const Settings& m_settings;
  const Texts& m_texts;
  std::shared_ptr<const GameCatalogue> m_catalogue;
  std::vector<std::size_t> m_games;
  std::shared_ptr<const Standings> m_standings;
  std::shared_ptr<const Season> m_season;
  std::vector<std::size_t> m_last, m_wrong; // places in the catalogue, as listed
  SeasonTableView* m_table;
  QCheckBox* m_practice;
  QLabel* m_reason; // why there is no table, or how ties are parted
  RowList* m_lastGames;
  QLabel* m_checkTitle;
  RowList* m_toCheck;
  QWidget* m_leaderCard;
  std::array<Board, kBoards> m_boards;
};

} // namespace hooptab
