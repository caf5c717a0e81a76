// The team editor: the list of teams, the fields of the one chosen, and its players. Lays out and forwards;
// what Add/Save does to the players is TeamSheet's to decide, and TeamStore writes. Asks before anything
// typed is lost.
#pragma once

#include "appearance/ChildWindow.h"
#include "appearance/WidgetsFirst.h"
#include "teams/PlayerExchange.h"
#include "teams/TeamSheet.h"
#include "teams/TeamStore.h"

class QBoxLayout;
class QLabel;
class QTableView;

namespace hooptab {

class PlayerEditor;
class PlayerTableModel;
class TeamFields;
class TeamList;

class frmEQUIPES : public ChildWindow {
  Q_OBJECT
 public:
  // All must outlive it.
  frmEQUIPES(TeamStore& teams, const Texts& texts, Dialogs& dialogs, QWidget* parent = nullptr);

  void relabelWindow() override;
  void applyColours() override;
  QByteArray arrangement() const override;
  void restoreArrangement(const QByteArray& state) override;

 signals:
  // Roster and input forms of the team as it is shown, saved or not.
  void printAsked(const TeamRecord& team, const std::vector<TeamPlayer>& players);

 protected:
  bool mayClose() override { return mayLeaveTeam(); }
  void resizeEvent(QResizeEvent* event) override;

 private:
  QWidget* makeTeams();
  QWidget* makePlayers();
  QLabel* title(Text text, QWidget* parent);
  void placeGroups();
  void widenColumns();
  void connectEverything();

  void listTeams();
  void changeTeam(int position); // asked for by the user
  void showTeam(int position);
  void showPlayers();
  void showNotice();

  void addTeam();
  bool saveTeam();
  void takeWritten();
  void deleteTeam();
  bool addPlayer();
  void deletePlayer();
  void chooseColour();
  void clearPlayer();
  void selectPlayer();
  void sortPlayers(int column);
  void showRow(const TeamPlayer& player);
  void takePlayers(bool (frmEQUIPES::*from)());
  bool importPlayers();
  bool pastePlayers();
  void exportPlayers();

  // Saves, discards or stays, as the user wants, where something would be lost. False: stay.
  bool mayLeaveTeam();
  bool mayLeavePlayer();
  bool askAndSave(const QString& question, bool (frmEQUIPES::*save)());
  [[nodiscard]] bool isTeamChanged() const;
  [[nodiscard]] bool isPlayerChanged() const;
  [[nodiscard]] const TeamEntry* team() const; // the one chosen, or null
  [[nodiscard]] bool isReadOnly() const;
  void warn(const QString& text);
  void tellSaved(const QString& done = {});
  void tellNotWritten();

  TeamStore& m_teams;
  const Texts& m_texts;
  Dialogs& m_dialogs;
  PlayerExchange m_exchange;
  std::vector<TeamEntry> m_entries;
  int m_position = -1; // of the team chosen
  TeamSheet m_sheet;
  TeamRecord m_loadedTeam;

  TeamList* m_list;
  PlayerTableModel* m_model;
  QLabel* m_notice;
  PlayerEditor* m_player = nullptr;
  TeamFields* m_fields = nullptr;
  QTableView* m_table = nullptr;
  QLabel* m_count = nullptr;
  QWidget* m_teamsCard = nullptr;
  std::vector<QLabel*> m_titles;
  QBoxLayout* m_whole = nullptr;
  QBoxLayout* m_editor = nullptr;
  QBoxLayout* m_playersHead = nullptr;
  WidgetsFirst m_widgetsFirst{*this}; // stays the last member
};

} // namespace hooptab
