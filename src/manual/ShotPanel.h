// The court and the list of the chosen player's field goals: places new ones, shows and deletes those that
// are there. With nobody chosen the court shows all of the team's shots, and takes none.
#pragma once

#include "game/EventKind.h"
#include "game/Side.h"

#include <QWidget>

#include <vector>

class QLabel;
class QListWidget;
class QPushButton;

namespace hooptab {

class ManualCourt;
class ManualGame;
class Settings;
class Texts;

class ShotPanel : public QWidget {
  Q_OBJECT
 public:
  // All must outlive it.
  ShotPanel(ManualGame& game, const Settings& settings, const Texts& texts, QWidget* parent = nullptr);

  void showShots(Side team, int player); // slot, 0 for nobody
  void relabelPanel();
  void applyColours();

 signals:
  void totalsChanged();
  void playerMissing(); // the court was pressed with nobody chosen

 private:
  struct Entry {
    EventCode kind;
    std::size_t index; // in the list of its kind
  };
  void place(EventCode kind, int x, int y, bool isMade);
  void deleteChosen();
  void showMarks();

  ManualGame& m_game;
  const Texts& m_texts;
  Side m_team = Side::Visitor;
  int m_player = 0;
  std::vector<Entry> m_entries; // of the list, row by row
  ManualCourt* m_court;
  QLabel* m_hint;
  QListWidget* m_list; // fsSHOT
  QPushButton* m_delete;
};

} // namespace hooptab
