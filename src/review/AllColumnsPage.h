// The page of the whole tables: every column for the players of a team, for its lines, and as a league's
// sheet, with check marks that the shot chart beside them follows. What is shown is decided by ScorecardView.
#pragma once

#include "game/Side.h"
#include "scorecard/ScorecardView.h"

#include <QWidget>

#include <array>
#include <memory>
#include <optional>

class QComboBox;
class QLabel;
class QSplitter;
class QStackedWidget;
class QToolButton;

namespace hooptab {

class BoxTable;
class Settings;
class ShotChartPanel;

class AllColumnsPage : public QWidget {
  Q_OBJECT

 public:
  AllColumnsPage(const Settings& settings, const Texts& texts, QWidget* parent = nullptr);

  // What is shown of it, for a report.
  const ScorecardView& choice() const { return m_view; }
  // Another game: every row is checked again, and nothing of the old one stays selected.
  void forgetGame();
  void showGame(std::shared_ptr<const CountedGame> game);
  void showHeaders(); // the language, the labels of statistics or the game has changed

  bool showsLeagueSheet() const { return m_showsLeagueSheet; }
  void showAs(BoxView view, bool asLeagueSheet);
  void setHidesMadeAttempted(bool hides);
  // The shot of an event stands out, by its place in the game that is shown.
  void highlight(std::optional<std::uint32_t> event);
  void applyColours();
  QSplitter& splitter() const { return *m_parts; }

 signals:
  void shownAs(); // another table
  void copied();

 private:
  QWidget* makeTables();
  void makeHead(QWidget& panel);
  [[nodiscard]] std::size_t shownTable() const; // among the tables
  BoxTable& table() const { return *m_tables[shownTable()]; }
  void showTeams();
  void showTable();
  void showChart();

  const Settings& m_settings;
  const Texts& m_texts;
  ScorecardView m_view;
  std::shared_ptr<const CountedGame> m_game;
  QComboBox* m_team = nullptr;
  QToolButton* m_league = nullptr;
  QToolButton* m_copy = nullptr;
  QLabel* m_kind = nullptr; // by player, by line, or a league's
  QStackedWidget* m_stack = nullptr;
  bool m_showsLeagueSheet = false;
  std::array<BoxTable*, 3> m_tables = {}; // by BoxView; a league's sheet
  std::array<std::optional<Side>, 3> m_shownTeam;
  ShotChartPanel* m_chart;
  QSplitter* m_parts;
};

} // namespace hooptab
