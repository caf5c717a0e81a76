// The scoreboard of the live window: both teams with score and fouls, clock and period with their buttons,
// times in lead, sides, and whether the last event is on disk. Shows, and says what was asked; changes
// nothing.
#pragma once

#include "storage/GameState.h"

#include <QPointer>
#include <QTimer>
#include <QWidget>

#include <array>
#include <cstddef>

class QAction;
class QBoxLayout;
class QGridLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QToolButton;

namespace hooptab {

class LiveGame;
class SideSwitch;
class Texts;

class ScorePanel : public QWidget {
  Q_OBJECT
 public:
  explicit ScorePanel(const Texts& texts, QWidget* parent = nullptr);

  // The game last shown must live as long as the panel is used.
  void showGame(const LiveGame& game);
  void showTime(const LiveGame& game); // what the running clock changes
  // Where the plates stand with their teams, they change places.
  void setSides(bool team0PlaysRight, bool platesStay);
  int bottomOfClock() const; // of the clock's buttons, in the panel
  void showRefused();        // a press on the clock's button or key that did nothing
  void showDisk(bool isOnDisk, std::size_t waiting);
  void relabelPanel(); // behind relabel()
  void applyColours();

 signals:
  void startAsked();
  void returnAsked();
  void switchAsked();
  void periodAsked(int period);
  void clockAsked(int seconds);
  void colourAsked(int team);
  void platesStayAsked(bool stay);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  struct Side {
    QWidget* plate = nullptr;
    QToolButton* name = nullptr;
    QLabel* points = nullptr;
    QLabel* fouls = nullptr;
  };
  struct Lead {
    QLabel* title = nullptr;
    QLabel* time = nullptr;
    QLabel* times = nullptr;
  };

  QLabel* label(const QString& name, const QFont& font);
  QToolButton* smallButton(const QString& name, const QString& text, int toolTip);
  QWidget* makePlate(int team);
  QWidget* makeFouls();
  QWidget* makeClock();
  QWidget* makeButtons();
  QWidget* makeLeads();
  void showTeam(std::size_t team);
  void showClockButtons();
  void showSides();
  void placeLeads();
  void showStart();
  void editClock();
  void takeClock();
  void leaveClock();
  void tip(QWidget& widget, int number);
  QString abbreviation(std::size_t team) const;
  QColor teamColour(std::size_t team) const;

  const Texts& m_texts;
  const LiveGame* m_game = nullptr; // shown last
  bool m_team0PlaysRight = false;
  bool m_areTurned = false; // team 0 stands on the right
  QBoxLayout* m_plates = nullptr;
  QBoxLayout* m_fouls = nullptr;
  QGridLayout* m_leadGrid = nullptr;
  QAction* m_platesStay = nullptr;
  QTimer m_refused;
  bool m_isHalfTimeOver = false; // for the sides: they have been switched in it
  bool m_isOnDisk = true;
  std::size_t m_waiting = 0;

  std::array<Side, 2> m_sides;
  std::array<Lead, 3> m_leads; // in the order of LeadState
  QLabel* m_clock = nullptr;
  QLineEdit* m_clockEdit = nullptr;
  QPointer<QWidget> m_focusBefore; // the clock was edited
  QLabel* m_period = nullptr;
  QToolButton* m_nextPeriod = nullptr;
  QToolButton* m_previousPeriod = nullptr;
  QPushButton* m_start = nullptr;
  QToolButton* m_later = nullptr;
  QToolButton* m_earlier = nullptr;
  SideSwitch* m_switch = nullptr;
  QToolButton* m_return = nullptr;
  QLabel* m_disk = nullptr;
};

} // namespace hooptab
