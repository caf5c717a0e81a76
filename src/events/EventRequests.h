// Answers what is asked for in the list of events of the live window: opens the dialogs for editing and for
// substitutions, hands the answers to the game, and says what does not fit. Lays nothing out.
#pragma once

#include "events/frmEDIT.h"
#include "game/Side.h"
#include "recording/GameSession.h"
#include "recording/Substitution.h"

#include <QObject>

#include <span>

namespace hooptab {

class Dialogs;
class LiveEventPanel;
class Settings;
class Texts;

class EventRequests : public QObject {
  Q_OBJECT
 public:
  // All must outlive it.
  EventRequests(GameSession& session, LiveEventPanel& panel, const Settings& settings, const Texts& texts,
                Dialogs& dialogs, QWidget& window);

  // A forgotten substitution before an event, with who has to be in it.
  void putIn(const EventPlace& event, Side team, int player);

 signals:
  void done(); // or refused: the game may be another now
  void startTakenBack();
  void clockAsked(); // by its key, while a dialog is in front

 private:
  void take(const EditPlan& plan);
  void takeBack(bool (LiveGame::*step)());
  [[nodiscard]] const LiveGame& game() const { return m_session.game(); }
  void change(const EventPlace& event);
  void ask(const EventPlace& event, frmEDIT::Purpose purpose, LiveGame::Where where);
  void askWho(const PastSubstitution& past, Side team, int player);

  GameSession& m_session;
  LiveEventPanel& m_panel;
  const Settings& m_settings;
  const Texts& m_texts;
  Dialogs& m_dialogs;
  QWidget& m_window;
};

} // namespace hooptab
