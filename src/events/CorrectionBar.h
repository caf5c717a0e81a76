// The line on which a recorded event is corrected: whose it is, by a number typed or a press on a player,
// made or missed, two or three points. Lies over the strip below the panels; anything else that is pressed
// ends it, and so do Esc and ten seconds without a step.
#pragma once

#include "game/Side.h"
#include "recording/EventCorrection.h"
#include "recording/GameSession.h"

#include <QFrame>
#include <QTimer>

#include <functional>

class QToolButton;

namespace hooptab {

class ElidedLabel;

class CorrectionBar : public QFrame {
  Q_OBJECT
 public:
  // Both must outlive it.
  CorrectionBar(GameSession& session, const Texts& texts, QWidget* parent);
  ~CorrectionBar() override;

  // False where such an event cannot be corrected.
  bool begin(const EventPlace& event);
  void end();
  bool isActive() const { return m_correction.isActive(); }
  // Whose the event is; nobody's where none is in correction.
  EventCorrection::Who whose() const { return isActive() ? m_correction.player() : EventCorrection::Who(); }
  // A press on a player; false where nothing is in correction.
  bool takePlayer(Side team, int player);
  void gameChanged(); // by something else: the event may be gone
  void toggleMade();
  void toggleThree();
  // Widgets on which a press is meant for it.
  void setPlayers(std::function<bool(const QWidget&)> isPlayer) { m_isPlayer = std::move(isPlayer); }
  void relabelBar(); // behind relabel(), and for other colours

 signals:
  void closed();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QToolButton* makeButton(const char* name, Text text);
  void step(const std::function<EventCorrection::Outcome()>& take);
  void number(const std::function<EventCorrection::Outcome()>& take);
  bool takeKey(int key);
  void showStep();

  GameSession& m_session;
  const Texts& m_texts;
  EventCorrection m_correction;
  std::function<bool(const QWidget&)> m_isPlayer;
  QTimer m_end;
  ElidedLabel* m_words;
  QToolButton* m_made;
  QToolButton* m_three;
  QToolButton* m_adapt;
  QToolButton* m_delete;
  QToolButton* m_keep;
  QToolButton* m_enough;
};

} // namespace hooptab
