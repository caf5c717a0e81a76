// The player who is selected for the next action, by number and name, and what can be recorded for him here:
// for one on the bench his fouls by a click each, all other actions by a menu. One on court has his own
// panel. Shows, and says what was asked for; records nothing.
#pragma once

#include "game/EventKind.h"
#include "game/Side.h"

#include <QWidget>

class QLabel;
class QToolButton;

namespace hooptab {

class LiveGame;
class Texts;

class SelectedPlayer : public QWidget {
  Q_OBJECT
 public:
  // `texts` must outlive it.
  explicit SelectedPlayer(const Texts& texts, QWidget* parent = nullptr);

  // A place without a player is nobody.
  void showPlayer(const LiveGame& game, Side team, int player);
  void showNobody();
  void applyColours(); // and lengths

 signals:
  void actionAsked(hooptab::EventCode kind);
  void shotAsked(const QPoint& place); // of the screen, where his court may come up

 private:
  QToolButton* makeButton(const char* name);
  QToolButton* makeFoul(const char* name, EventCode kind);
  QToolButton* makeShot();
  QToolButton* makeMenu();

  const Texts& m_texts;
  QLabel* m_number;
  QLabel* m_name;
  QWidget* m_actions;
  QToolButton* m_menu;
};

} // namespace hooptab
