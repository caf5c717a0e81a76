// The season's window: a folder of games with its list and criteria, the statistics of the games selected,
// leaders, one player or line game by game, and a team. Lays out and forwards; what is worked on is decided
// by SeasonDesk, and all that takes its time is done on a thread of its own, which can be cancelled.
#pragma once

#include "appearance/ChildWindow.h"
#include "appearance/Task.h"
#include "appearance/WidgetsFirst.h"
#include "season/SeasonDesk.h"

class QLabel;
class QLineEdit;
class QTabWidget;
class QToolButton;

namespace hooptab {

class AveragesPanel;
class CriteriaPanel;
class Dialogs;
class FolderPanel;
class LeadersPanel;
class PersonPanel;
class SavedViews;
class SearchPanel;
class SeasonTableView;
class Settings;
class StandingsPanel;
class TeamPanel;

class frmSTATS : public ChildWindow {
  Q_OBJECT

 public:
  // All must outlive it.
  frmSTATS(FileSystem& files, const Settings& settings, const Texts& texts, Dialogs& dialogs,
           QWidget* parent = nullptr);

  // Reads the folder that is shown. Nothing while other work is under way.
  void readFolder();
  void readFolder(const QString& folder, bool withSubfolders);
  // Where the summaries of what was read are kept; empty, as at first: nowhere.
  void keepSummariesIn(const std::string& folder) { m_cacheFolder = folder; }
  // Who reads the user's own rating; nobody, as at first: it is not shown.
  void setFormulaReader(FormulaReader reader);
  bool isBusy() const { return m_task.isRunning(); }
  // What reports are made of; null before statistics were generated.
  const std::shared_ptr<const Season>& statistics() const { return m_desk.season(); }
  // What a game's shots are compared with; see SeasonDesk.
  std::optional<ShotSums> shotsBeside(const GameDetails& game, std::optional<Side> team) const {
    return m_desk.shotsBeside(game, team);
  }
  std::optional<SeasonId> chosenTeam() const { return m_desk.chosenTeam(); }
  std::shared_ptr<const SeasonPerson> chosenPerson() const; // player or line; null: nobody
  // The games that are shown in the list; those selected there, where there are two or more.
  [[nodiscard]] std::vector<const ListedGame*> chosenGames() const;
  // Of the page of a team: the team, and the one for whose coach its scouting sheet is.
  std::optional<SeasonId> shownTeam() const;
  std::optional<SeasonId> readingTeam() const;
  // What is in front, for whoever prints it.
  enum class Page { Standings, Games, Players, Lines, Leaders, Person, Team, Search, LeftOut };
  Page shownPage() const;
  SeasonView shownLeaders() const; // the view of the leaders

  void relabelWindow() override;
  void applyColours() override;
  QByteArray arrangement() const override; // folder, splitters, column widths
  void restoreArrangement(const QByteArray& state) override;

 signals:
  void gameAsked(const QString& path); // to be opened as a scorecard
  void gamesToFileAsked();             // the chosen ones
  void scoutAsked();                   // the scouting sheet of the shown team

 private:
  QWidget* makeGames();
  void browse();
  void apply();
  void generate(QWidget& page); // which is shown then
  void search();
  bool mayCountWrong();
  void showPerson(const SeasonRow& row, bool isLine);
  void showTeam(SeasonId team);
  void chooseMinimum(const Qualification& minimum);
  void takeOwnRating(); // a formula, or another one
  void showRanking();
  void openGame(std::size_t game);
  void takeScan(ScanOutcome outcome, std::shared_ptr<const GameCatalogue> catalogue);

  // The texts are for one and for several games.
  void startWork(Text one, Text text, Task::Work work);
  void showProgress();
  void endWork();
  void showCatalogue();
  void showList();
  void showSeason();
  void showNotice();
  void copyShownTable();
  QWidget* makeTools();
  void showFilters(bool areShown);
  // Criteria, page, filters, and columns with their order and sort.
  QByteArray view() const;
  void showView(const QByteArray& view);

  FileSystem& m_files;
  const Settings& m_settings;
  const Texts& m_texts;
  Dialogs& m_dialogs;
  std::string m_cacheFolder;
  FormulaReader m_readFormula;
  SeasonDesk m_desk;
  Text m_progressText = Text::None;        // of the work under way
  Text m_progressOne = Text::None;         // the same for one game
  std::size_t m_progressCount = 0;         // of games in it, where it is no scan
  std::vector<std::size_t> m_countedWrong; // games that the user counts although they cannot be right
  Text m_problem = Text::None;             // what went wrong last

  FolderPanel* m_folder;
  QLineEdit* m_search;
  QLabel* m_notice;
  QTabWidget* m_tabs;
  StandingsPanel* m_standings;
  CriteriaPanel* m_criteria = nullptr;
  SeasonTableView* m_games = nullptr;
  SeasonTableView* m_notRead;
  QToolButton* m_filters = nullptr;
  SavedViews* m_views = nullptr;
  AveragesPanel* m_players;
  AveragesPanel* m_lines;
  LeadersPanel* m_leaders;
  PersonPanel* m_person;
  TeamPanel* m_team;
  SearchPanel* m_found;
  const SeasonTableView* m_lastTable = nullptr; // that the user was in
  Task m_task;                                  // goes before what its work refers to
  WidgetsFirst m_widgetsFirst{*this};           // stays the last member
};

} // namespace hooptab
