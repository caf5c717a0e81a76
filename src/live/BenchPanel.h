// The benches of both teams: a button for each place of the rosters, who is on court, selected or fouled out,
// and the ways to substitute. Shows, and says what was pressed; changes no game.
#pragma once

#include "live/OnCourt.h"
#include "storage/EventKind.h"

#include <QWidget>

#include <array>

class QAction;
class QLabel;
class QPushButton;
class QStackedLayout;

namespace hooptab {

class JerseyButton;
class LiveGame;
class SelectedPlayer;
class Texts;

class BenchPanel : public QWidget {
  Q_OBJECT
 public:
  // `texts` must outlive it.
  explicit BenchPanel(const Texts& texts, QWidget* parent = nullptr);

  // The game must live as long as the panel, or until another is shown.
  void showGame(const LiveGame& game);
  void showTime(const LiveGame& game); // the time on court in the tool tips
  // The player of the next action; a place without a player clears the selection.
  void select(int team, int player);
  void clearSelection() { select(0, 0); }
  bool isSelected(int team, int player) const {
    return player > 0 && team == m_selectedTeam && player == m_selectedPlayer;
  }
  bool isSubstituting() const;
  void askSeveral();             // in a window of its own
  void setTurned(bool isTurned); // the rosters stand in the order of the panels
  void relabelPanel();
  void applyColours();

 signals:
  void toggled(int team, int player);                              // in substitution mode
  void selected(int team, int player);                             // another one, or nobody (player 0)
  void actionAsked(int team, int player, hooptab::EventCode kind); // for a player of the bench
  void shotAsked(int team, int player, const QPoint& place);       // the same; a place of the screen
  void allOutAsked(int team);
  void onCourtAsked(hooptab::OnCourt onCourt); // from "several at once"
  void clockAsked();                           // there, too, by its key

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  static constexpr int kPlaces = 15; // of a team
  QWidget* makeTeam(int team);
  QWidget* makeCommands();
  void press(int team, int player);
  void showPlace(const LiveGame& game, int team, int player);
  void showSelection();
  void showMode();
  void showPending();

  const Texts& m_texts;
  const LiveGame* m_game = nullptr;
  int m_selectedTeam = 0;
  int m_selectedPlayer = 0;
  std::array<std::array<JerseyButton*, kPlaces>, 2> m_players = {};
  std::array<QLabel*, 2> m_names = {};
  std::array<QPushButton*, 2> m_allOut = {};
  std::array<QWidget*, 2> m_rosters = {};
  QAction* m_substitute = nullptr;
  QAction* m_several = nullptr;
  QWidget* m_commands = nullptr;
  SelectedPlayer* m_selection = nullptr;
  QLabel* m_pending = nullptr;
  QStackedLayout* m_last = nullptr;
};

} // namespace hooptab
