// The scoreboard of the live window: one dark plate with both teams' score, clock and period, the clock's
// button, the fouls of both teams in words, and the score by period with the times in lead. Shows, and says
// what was asked; changes nothing.
#pragma once

#include "game/GameState.h"
#include "game/Side.h"

#include <QPointer>
#include <QTimer>
#include <QWidget>

#include <array>
#include <cstddef>

class QBoxLayout;
class QLabel;
class QLineEdit;
class QToolButton;

namespace hooptab {

class FoulCard;
class LiveGame;
class PeriodScores;
class StartButton;
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
  void relabelPanel();       // behind relabel()
  void applyColours();
  void beginTimeOut(Side team); // its seconds run on its card
  void endTimeOuts();
  [[nodiscard]] Side teamOnTheLeft() const { return m_areTurned ? Side::Home : Side::Visitor; }

 signals:
  void startAsked();
  void returnAsked();
  void periodAsked(int period);
  void clockAsked(int seconds);
  void colourAsked(hooptab::Side team);
  void timeOutAsked(hooptab::Side team);
  void arrowAsked(hooptab::Side team);
  void teamMenuAsked(hooptab::Side team, const QPoint& place); // of the screen

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  struct TeamWidgets {
    QWidget* plate = nullptr;
    QToolButton* name = nullptr;
    QLabel* points = nullptr;
    FoulCard* fouls = nullptr;
  };

  QLabel* label(const QString& name);
  QToolButton* smallButton(const QString& name, const QString& text, Text toolTip);
  void makeTeam(Side team);
  void makeClock();
  void makePeriod();
  void setHeight();
  void layOut();
  void showTeam(Side team);
  void showClockButtons();
  void showSides();
  void showStart();
  void editClock();
  void takeClock();
  void leaveClock();
  void tip(QWidget& widget, Text text);

  const Texts& m_texts;
  const LiveGame* m_game = nullptr; // shown last
  bool m_team0PlaysRight = false;
  bool m_areTurned = false; // team 0 stands on the right
  int m_foulsHeight = 0;
  QTimer m_refused;
  PerSide<TeamWidgets> m_sides;
  QRect m_plate;
  QLabel* m_clock = nullptr;
  QLabel* m_state = nullptr; // RUNNING, STOPPED
  QLineEdit* m_clockEdit = nullptr;
  QPointer<QWidget> m_focusBefore; // the clock was edited
  QLabel* m_periodTitle = nullptr;
  QLabel* m_period = nullptr;
  QToolButton* m_nextPeriod = nullptr;
  QToolButton* m_previousPeriod = nullptr;
  StartButton* m_start = nullptr;
  QToolButton* m_later = nullptr;
  QToolButton* m_earlier = nullptr;
  QToolButton* m_return = nullptr;
  PeriodScores* m_periods = nullptr;
};

} // namespace hooptab
