// The scorecard window: one game with its head and pages, the whole of it or a stretch, read again on request
// or on a timer. Lays out and forwards; what is shown is decided by ShownGame, ScorecardView and Scoreboard,
// each page shows it for itself.
#pragma once

#include "appearance/ChildWindow.h"
#include "appearance/WidgetsFirst.h"
#include "game/OwnRating.h"
#include "review/SeasonAverage.h"
#include "review/ShownGame.h"
#include "scorecard/FileChange.h"
#include "scorecard/Scorecard.h"
#include "scorecard/ScorecardView.h"

#include <QTimer>

#include <memory>
#include <optional>

class QLabel;
class QShortcut;
class QStackedWidget;
class QTabBar;
class QToolButton;

namespace hooptab {

class AllColumnsPage;
class CheckStrip;
class ColumnChooser;
class ComparePage;
class ElidedLabel;
class EventPanel;
class FlowPanel;
class GameDetailsPanel;
class GamePage;
class PeriodFilter;
class ScoreboardStrip;
class Settings;
class ShotsPage;

class frmVIEW : public ChildWindow {
  Q_OBJECT

 public:
  enum class RefreshMode { Manual = 0, Every10 = 10, Every30 = 30, Every60 = 60 }; // seconds
  enum class Page { Game, AllColumns, Flow, Shots, Compare, Events, Details };

  // Store, settings and texts must outlive it.
  frmVIEW(ProfileStore& store, const Settings& settings, const Texts& texts, QWidget* parent = nullptr);
  ~frmVIEW() override;

  // Who reads the formula of the user's own rating.
  void setFormulaReader(FormulaReader reader);
  // Who knows the season that is open; to be told when that may be another.
  void setSeasonShots(SeasonShots shots);
  void lookAtSeason();

  // Reads and shows a game; on a problem what was shown stays.
  [[nodiscard]] GameFileProblem open(const QString& path);
  QString path() const;
  // The whole game, whatever stretch is shown, and how its tables are, for a report of it; only after open().
  const Scorecard& card() const { return *m_card; }
  const ScorecardView& choice() const;
  // Reads the game anew. While that fails, what was read last stays and a notice says so.
  void refresh();
  // A timed mode begins a new period whenever it is set.
  void setRefreshMode(RefreshMode mode);
  RefreshMode refreshMode() const { return m_refreshMode; }

  void showPage(Page page);
  // Nothing: the whole game. The head shows the whole game in any case.
  void showStretch(const std::optional<Stretch>& stretch);

  // Of the page with all columns, which comes forward.
  bool isByLine() const { return choice().view() == BoxView::Lines; }
  void setByLine(bool byLine); // leaves a league's sheet
  bool showsLeagueSheet() const;
  // Of the players, in place of their table.
  void setShowsLeagueSheet(bool shows);
  bool hidesMadeAttempted() const { return choice().hidesMadeAttempted(); }
  void setHidesMadeAttempted(bool hides);

  void relabelWindow() override;
  void applyColours() override;
  QByteArray arrangement() const override; // of the splitter, and the columns of the page of the game
  void restoreArrangement(const QByteArray& state) override;

 signals:
  void commandStateChanged();

 private:
  QWidget* makeBar();
  void addPages();
  void connectPages();
  void refreshOnTimer();
  void readAgain();
  void showGame(bool isNew);
  void showPages();
  void showButtons();
  void showPageInFront();
  void showNotice();
  void reportCopy();
  void leadTo(std::size_t event);

  ProfileStore& m_store;
  const Settings& m_settings;
  const Texts& m_texts;
  std::unique_ptr<Scorecard> m_card;
  ShownGame m_game;
  std::optional<FileChange> m_change;
  GameFileProblem m_problem = GameFileProblem::None; // of the last reading
  RefreshMode m_refreshMode = RefreshMode::Manual;
  QTimer m_timer;

  QLabel* m_notice;
  CheckStrip* m_check;
  ScoreboardStrip* m_strip;
  QTabBar* m_tabs;
  ElidedLabel* m_where; // date and place
  PeriodFilter* m_filter;
  QToolButton* m_box; // of the stretch that was chosen in the flow
  QToolButton* m_columns;
  ColumnChooser* m_chooser;
  QShortcut* m_escape; // shows the whole game again
  QStackedWidget* m_pages;
  GamePage* m_gamePage;
  AllColumnsPage* m_all;
  FlowPanel* m_flow;
  ShotsPage* m_shots;
  ComparePage* m_compare;
  EventPanel* m_events;
  GameDetailsPanel* m_details;
  WidgetsFirst m_widgetsFirst{*this}; // stays the last member
};

} // namespace hooptab
