// One side of the new-game window, a card: its head in the team's colour, the list of teams, name and
// category for this game, and the players who take part, with a count that warns when they are too many.
// Players come from the team, by their numbers alone, or one by one. Writes into the game that is being set
// up.
#pragma once

#include "appearance/Card.h"
#include "game/Side.h"
#include "setup/SidePlayersModel.h"

class QLabel;
class QLineEdit;
class QRadioButton;

namespace hooptab {

class BandChoice;
class SidePlayersTable;
class SideBand;
class TeamList;

class SidePanel : public Card {
  Q_OBJECT
 public:
  SidePanel(NewGame& game, Side side, const Texts& texts, QWidget* parent = nullptr);

  QRadioButton& mainTeamChoice() const;
  SidePlayersTable& players() const { return *m_table; }
  TeamList& teams() const { return *m_teams; }
  QLineEdit& numbers() const { return *m_numbers; }
  QString wrongNumbers() const; // what is wrong with those that still stand in their field; else empty
  bool takeTypedPlayer();       // who was typed and not added yet; false where he cannot be
  void relabelPanel();          // after the captions
  void showTeams();             // those that the game knows have changed

 signals:
  void teamChosen();
  void teamsChanged(); // of both sides: one of this game alone is there, or has another name

 private:
  QLayout* makeFields();
  QLayout* makePlayers();
  QLayout* makeFoot();
  QLineEdit* addField(const char* name, Text text);
  void takeNames();
  void takeOwnTeam();
  void takeNumbers();
  void addPlayer();
  void takeTeam(); // that the game has chosen for the side
  void showTeam();
  void showPlayers();
  void showBand();
  void showCount();
  QString named(const char* name) const; // "NAME(SIDE)"

  NewGame& m_game;
  const Side m_side;
  const Texts& m_texts;
  SidePlayersModel m_model;
  // In the order of the Tab key.
  BandChoice* m_main;
  SideBand* m_band;
  TeamList* m_teams;
  QLineEdit* m_name;
  QLineEdit* m_category;
  QLineEdit* m_numbers;
  std::string m_numbersTaken; // as typed last
  SidePlayersTable* m_table;
  QLineEdit* m_jersey;
  QLineEdit* m_player;
  QLabel* m_problem;
  QLabel* m_count;
};

} // namespace hooptab
