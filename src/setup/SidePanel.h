// One side of the new-game window: the list of teams, name and category for this game, and the players who
// take part, with a count that warns when they are too many. Writes into the game that is being set up.
#pragma once

#include "setup/SidePlayersModel.h"

#include <QGroupBox>

class QLabel;
class QLineEdit;
class QRadioButton;

namespace hooptab {

class SidePlayersTable;
class TeamList;

class SidePanel : public QGroupBox {
  Q_OBJECT
 public:
  SidePanel(NewGame& game, int side, const Texts& texts, QWidget* parent = nullptr);

  QRadioButton& mainTeamChoice() const { return *m_main; }
  SidePlayersTable& players() const { return *m_table; }
  TeamList& teams() const { return *m_teams; }
  void relabelPanel(); // after the captions

 signals:
  void teamChosen();

 private:
  QLayout* makeFields();
  QLayout* makePlayers();
  void showTeam();
  void showCount();
  QString named(const char* name) const; // "NAME(SIDE)"

  NewGame& m_game;
  const int m_side;
  const Texts& m_texts;
  SidePlayersModel m_model;
  TeamList* m_teams;
  QLineEdit* m_name;
  QLineEdit* m_category;
  QRadioButton* m_main;
  SidePlayersTable* m_table;
  QLabel* m_count;
};

} // namespace hooptab
