// What one looks at when a period has ended, in the order in which one does it: the score against the
// scoreboard's, what is to be checked, sides and substitutions, and the start of the next period. Nothing on
// it has to be filled in. Shows, and says what was asked for.
#pragma once

#include "game/Side.h"
#include "settings/Texts.h"

#include <QWidget>

#include <array>

class QLabel;
class QLineEdit;
class QPushButton;
class QBoxLayout;

namespace hooptab {

class LiveGame;

class PeriodEndCard : public QWidget {
  Q_OBJECT
 public:
  // `texts` must outlive it.
  PeriodEndCard(const Texts& texts, QWidget* parent);

  // For the period that has just ended. The game must live until it is closed.
  void open(const LiveGame& game);
  void showGame(const LiveGame& game); // closes it where the next period has begun
  void setToCheck(std::size_t findings, std::size_t doubtful);
  void relabelCard();
  void applyColours();

 signals:
  void nextAsked();                     // the start of the next period, the overtime, or the end of the game
  void eventsAsked(hooptab::Side team); // the score on the board is another
  void checkAsked();
  void switchAsked();
  void substitutionAsked();
  void clockAsked(); // by its key, while a score is typed
  void closed();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QWidget* makeScore();
  QLayout* makeAnswers();
  QLabel* makeTitle(Text text);
  QPushButton* makeButton(const char* name, Text text);
  void compare();

  const Texts& m_texts;
  const LiveGame* m_game = nullptr;
  int m_period = 0; // that has ended
  std::size_t m_findings = 0;
  std::size_t m_doubtful = 0;
  QWidget* m_head = nullptr;
  QLabel* m_title = nullptr;
  PerSide<QLabel*> m_names = {};
  PerSide<QLineEdit*> m_scores = {};
  QLabel* m_compared = nullptr;
  QPushButton* m_another = nullptr;
  QPushButton* m_events = nullptr;
  QLabel* m_toCheck = nullptr;
  QPushButton* m_check = nullptr;
  QPushButton* m_switch = nullptr;
  QPushButton* m_substitute = nullptr;
  QBoxLayout* m_both = nullptr; // what can be done before the next period
  QPushButton* m_next = nullptr;
  std::optional<Side> m_differs; // team whose score is another on the board
};

} // namespace hooptab
