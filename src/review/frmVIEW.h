// The scorecard window: one game with its head, box score, events, details and shot chart, read again on
// request or on a timer. Lays out and forwards; what is shown is decided by ScorecardView, Scoreboard and
// BoxScore.
#pragma once

#include "appearance/ChildWindow.h"
#include "appearance/WidgetsFirst.h"
#include "game/Side.h"
#include "scorecard/FileChange.h"
#include "scorecard/Scorecard.h"
#include "scorecard/ScorecardView.h"

#include <QTimer>

#include <array>
#include <memory>
#include <optional>

class QComboBox;
class QLabel;
class QStackedWidget;
class QTabWidget;
class QToolButton;

namespace hooptab {

class BoxTable;
class CheckStrip;
class EventPanel;
class GameDetailsPanel;
class ScoreboardStrip;
class Settings;
class ShotChartPanel;

class frmVIEW : public ChildWindow {
  Q_OBJECT

 public:
  enum class RefreshMode { Manual = 0, Every10 = 10, Every30 = 30, Every60 = 60 }; // seconds

  // Store, settings and texts must outlive it.
  frmVIEW(ProfileStore& store, const Settings& settings, const Texts& texts, QWidget* parent = nullptr);
  ~frmVIEW() override;

  // Reads and shows a game; on a problem what was shown stays.
  [[nodiscard]] GameFileProblem open(const QString& path);
  QString path() const;
  // What is shown, for a report of it; only after open().
  const Scorecard& card() const { return *m_card; }
  const ScorecardView& choice() const { return m_view; }
  // Reads the game anew. While that fails, what was read last stays and a notice says so.
  void refresh();
  // A timed mode begins a new period whenever it is set.
  void setRefreshMode(RefreshMode mode);
  RefreshMode refreshMode() const { return m_refreshMode; }

  bool isByLine() const { return m_view.view() == BoxView::Lines; }
  void setByLine(bool byLine); // leaves a league's sheet
  bool showsLeagueSheet() const { return m_showsLeagueSheet; }
  // Of the players, in place of their table.
  void setShowsLeagueSheet(bool shows);
  bool hidesMadeAttempted() const { return m_view.hidesMadeAttempted(); }
  void setHidesMadeAttempted(bool hides);

  void relabelWindow() override;
  void applyColours() override;
  QByteArray arrangement() const override; // of the splitters
  void restoreArrangement(const QByteArray& state) override;

 signals:
  void commandStateChanged();

 private:
  QWidget* makeTables();
  QWidget* makeEventsAndDetails();
  // Among the tables.
  std::size_t shownTable() const;
  BoxTable& table() const { return *m_tables[shownTable()]; }
  void showAs(BoxView view, bool asLeagueSheet);
  void refreshOnTimer();
  void readAgain();
  void showGame(bool isNew);
  void showTeams();
  void showTable();
  void showChart();
  void showHeaders();
  void showNotice();

  ProfileStore& m_store;
  const Settings& m_settings;
  const Texts& m_texts;
  std::unique_ptr<Scorecard> m_card;
  std::optional<FileChange> m_change;
  GameFileProblem m_problem = GameFileProblem::None; // of the last reading
  ScorecardView m_view;
  RefreshMode m_refreshMode = RefreshMode::Manual;
  QTimer m_timer;

  QLabel* m_notice;
  CheckStrip* m_check;
  ScoreboardStrip* m_strip;
  QComboBox* m_team;
  QToolButton* m_league;
  QLabel* m_kind; // by player, by line, or a league's
  QStackedWidget* m_stack;
  bool m_showsLeagueSheet = false;
  std::array<BoxTable*, 3> m_tables; // by BoxView; a league's sheet
  std::array<std::optional<Side>, 3> m_shownTeam;
  QTabWidget* m_tabs;
  EventPanel* m_events;
  GameDetailsPanel* m_details;
  ShotChartPanel* m_chart;
  WidgetsFirst m_widgetsFirst{*this}; // stays the last member
};

} // namespace hooptab
