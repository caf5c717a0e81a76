// A team's fouls of the period on a card: how many, and in words what they mean for the other team. Where a
// game asks for what teams do, also its time-outs, the possession arrow, and a way to all else.
#pragma once

#include "game/Side.h"

#include <QColor>
#include <QElapsedTimer>
#include <QTimer>
#include <QWidget>

#include <array>

class QLabel;
class QToolButton;

namespace hooptab {

class ArrowButton;
class LiveGame;
class Texts;
class TimeOutButton;

class FoulCard : public QWidget {
  Q_OBJECT
 public:
  // `texts` must outlive it.
  FoulCard(Side team, const Texts& texts, QWidget* parent = nullptr);

  void showGame(const LiveGame& game);
  void applyColours();
  // Where its plate stands, which the key of a time-out goes by, and where it plays, to which the arrow
  // points.
  void setSide(bool standsLeft, bool playsRight, const LiveGame& game);
  // A time-out of this team has begun: its seconds run, until the clock of the game does.
  void beginTimeOut();
  void endTimeOut() { m_timeOutTick.stop(); }
  [[nodiscard]] static int heightFor(const LiveGame& game);

 signals:
  void timeOutAsked(hooptab::Side team);
  void arrowAsked(hooptab::Side team);
  void menuAsked(hooptab::Side team, const QPoint& place); // of the screen

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void makeLeague();
  void showLeague(const LiveGame& game);
  void showTimeOut();

  Side m_team;
  const Texts& m_texts;
  QColor m_colour;
  bool m_isInBonus = false;
  QLabel* m_title = nullptr;
  QLabel* m_count = nullptr;
  QLabel* m_words = nullptr;
  bool m_isOfLeague = false;
  bool m_standsLeft = true;
  bool m_playsRight = false;
  int m_left = 0; // time-outs
  int m_taken = 0;
  int m_takenInGame = 0;
  int m_takenAtBegin = 0; // of the time-out that runs
  QTimer m_timeOutTick;   // while a time-out runs
  QElapsedTimer m_timeOut;
  TimeOutButton* m_timeOuts = nullptr;
  ArrowButton* m_arrow = nullptr;
  QToolButton* m_menu = nullptr;
  std::array<QWidget*, 3> m_league = {}; // all of them
};

} // namespace hooptab
