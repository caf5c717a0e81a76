#include "events/EventRequests.h"

#include "appearance/Dialogs.h"
#include "appearance/relabel.h"
#include "events/LiveEventPanel.h"
#include "events/frmSUBST.h"
#include "recording/ConflictWords.h"

namespace hooptab {

EventRequests::EventRequests(GameSession& session, LiveEventPanel& panel, const Settings& settings,
                             const Texts& texts, Dialogs& dialogs, QWidget& window)
    : QObject(&window), m_session(session), m_panel(panel), m_settings(settings), m_texts(texts),
      m_dialogs(dialogs), m_window(window) {
  connect(&panel, &LiveEventPanel::undoAsked, this, [this] { takeBack(&LiveGame::undo); });
  connect(&panel, &LiveEventPanel::redoAsked, this, [this] { takeBack(&LiveGame::redo); });
  connect(&panel, &LiveEventPanel::deleteAsked, this,
          [this](const std::vector<EventPlace>& events, bool isDeleted) {
            m_session.change()->writePending(); // what is planned comes behind it
            take(game().editing().deletion(events, isDeleted));
          });
  connect(&panel, &LiveEventPanel::editAsked, this, &EventRequests::change);
  connect(&panel, &LiveEventPanel::timeAsked, this,
          [this](const EventPlace& event) { ask(event, frmEDIT::Purpose::Change, LiveGame::Where::Behind); });
  connect(&panel, &LiveEventPanel::insertAsked, this, [this](const EventPlace& event, bool isBefore) {
    ask(event, frmEDIT::Purpose::Insert, isBefore ? LiveGame::Where::Before : LiveGame::Where::Behind);
  });
  connect(&panel, &LiveEventPanel::substitutionAsked, this, &EventRequests::askWho);
  connect(&panel, &LiveEventPanel::acceptAsked, this, [this](const EventPlace& event, int finding) {
    m_session.change()->acceptFinding(event, finding);
    emit done();
  });
  connect(&panel, &LiveEventPanel::doubtAsked, this, [this](const EventPlace& event, bool isDoubtful) {
    m_session.change()->setDoubtful(event, isDoubtful);
    emit done();
  });
}

void EventRequests::putIn(const EventPlace& event, Side team, int player) {
  askWho({PastSubstitution::What::InsertBefore, event}, team, player);
}

void EventRequests::take(const EditPlan& plan) {
  const bool isTaken = m_session.change()->take(plan);
  emit done();
  if (isTaken)
    return;
  QString words = caption(m_texts, Text::DoesNotFit);
  if (plan.conflict)
    words += QStringLiteral("\n\n") + toQt(wordsOf(*plan.conflict, game().game(), m_texts));
  m_dialogs.warn(&m_window, caption(m_texts, Text::WarningTitle), words);
}

void EventRequests::takeBack(bool (LiveGame::*step)()) {
  m_session.change()->writePending();
  const std::optional<LiveAction> undone = game().toUndo();
  const bool isStart = step == &LiveGame::undo && undone && undone->start;
  const bool isDone = (*m_session.change().*step)();
  emit done();
  m_panel.leaveDeleted();
  if (isStart && isDone)
    emit startTakenBack();
}

// Of a substitution who goes in and out, of anything else what frmEDIT can change.
void EventRequests::change(const EventPlace& event) {
  const LiveLog& log = game().log();
  if (isSubstitution(log.game().events, event.period, event.key, log.rosters()))
    askWho({PastSubstitution::What::Change, event}, Side::Visitor, 0);
  else
    ask(event, frmEDIT::Purpose::Change, LiveGame::Where::Behind);
}

void EventRequests::ask(const EventPlace& event, frmEDIT::Purpose purpose, LiveGame::Where where) {
  frmEDIT window(game(), event, purpose, m_settings, m_texts, &m_window);
  connect(&window, &frmEDIT::clockAsked, this, &EventRequests::clockAsked);
  if (window.exec() != QDialog::Accepted)
    return;
  m_session.change()->writePending(); // what is planned comes behind it
  const auto counted = window.counted();
  const int clock = window.clockSeconds();
  const GameEditing editing = game().editing();
  if (!counted)
    take(editing.newTime(event, clock));
  else if (purpose == frmEDIT::Purpose::Change)
    take(editing.change(event, clock, *counted));
  else
    take(editing.insertion(event, where, clock, *counted));
}

void EventRequests::askWho(const PastSubstitution& past, Side team, int player) {
  auto* window = new frmSUBST(game(), past, m_texts, &m_window);
  window->setAttribute(Qt::WA_DeleteOnClose);
  if (player > 0)
    window->toggle(team, player);
  connect(window, &frmSUBST::clockAsked, this, &EventRequests::clockAsked);
  connect(window, &QDialog::accepted, this, [this, window] {
    m_session.change()->writePending();
    take(window->plan());
  });
  window->openBeside(m_panel);
}

} // namespace hooptab
