// The benches of both teams: their roster strips, which stand where the window wants them, the player who is
// selected for the next action, and the ways to substitute. Shows, and says what was pressed; changes no
// game.
#pragma once

#include "game/EventKind.h"
#include "game/Side.h"
#include "recording/OnCourt.h"

#include <QWidget>

#include <array>
#include <functional>
#include <utility>

class QAction;
class QStackedLayout;

namespace hooptab {

class LiveGame;
class RosterStrip;
class SelectedPlayer;
class Texts;
class frmSUBST;

class BenchPanel : public QWidget {
  Q_OBJECT
 public:
  // `texts` must outlive it. The strips are made below `stripParent`, for its layout; `sides` stands beside
  // the commands.
  BenchPanel(const Texts& texts, QWidget* stripParent, QWidget* sides, QWidget* parent = nullptr);

  RosterStrip& strip(Side team) { return *m_strips[team]; }

  // The game must live as long as the panel, or until another is shown.
  void showGame(const LiveGame& game);
  void showTime(const LiveGame& game); // the time on court in the tool tips
  // The player of the next action; a place without a player clears the selection.
  void select(Side team, int player);
  void clearSelection() { select(Side::Visitor, 0); }
  bool isSelected(Side team, int player) const {
    return player > 0 && team == m_selectedTeam && player == m_selectedPlayer;
  }
  // The entry of the selected player, if he is of that team; else 0.
  int selectedOf(Side team) const { return team == m_selectedTeam ? m_selectedPlayer : 0; }
  // Takes a press on a player before anything else does; false where it has no use for it.
  void setTaker(std::function<bool(Side team, int player)> taker) { m_taker = std::move(taker); }
  bool isSubstituting() const;
  void stopSubstituting();
  bool placesStay() const;
  void setPlacesStay(bool stay);
  void askSeveral(); // in a window of its own
  void relabelPanel();
  void applyColours();

 signals:
  void toggled(hooptab::Side team, int player);  // in substitution mode
  void selected(hooptab::Side team, int player); // another one, or nobody (player 0)
  void actionAsked(hooptab::Side team, int player, hooptab::EventCode kind); // for a player of the bench
  void shotAsked(hooptab::Side team, int player, const QPoint& place); // the same; a place of the screen
  void allOutAsked(hooptab::Side team);
  void onCourtAsked(hooptab::OnCourt onCourt); // from "several at once"
  void clockAsked();                           // there, too, by its key
  void playerAsked(hooptab::Side team);        // one who is not in the roster yet
  void placesStayAsked(bool stay);
  void severalShown(hooptab::frmSUBST& several); // about to be

 private:
  QWidget* makeCommands(QWidget* sides);
  void press(Side team, int player);
  void showStrips();
  void showSelection();

  const Texts& m_texts;
  const LiveGame* m_game = nullptr;
  Side m_selectedTeam = Side::Visitor;
  int m_selectedPlayer = 0;
  PerSide<RosterStrip*> m_strips = {};
  QAction* m_substitute = nullptr;
  QAction* m_several = nullptr;
  QAction* m_placesStay = nullptr;
  std::function<bool(Side, int)> m_taker;
  SelectedPlayer* m_selection = nullptr;
  QStackedLayout* m_pages = nullptr; // the commands, or who is selected, in one place: nothing moves
};

} // namespace hooptab
