// What is pressed in the live window: shots and actions, the questions behind them, keys, and the card of a
// period's end.
#include "live/frmLIVE.h"

#include "appearance/relabel.h"
#include "events/BenchShot.h"
#include "events/CorrectionBar.h"
#include "events/EventRequests.h"
#include "events/FollowUpBar.h"
#include "events/LiveEventPanel.h"
#include "events/MessageLine.h"
#include "game/CourtClick.h"
#include "game/EventWords.h"
#include "live/BenchPanel.h"
#include "live/LiveKeys.h"
#include "live/LiveNotices.h"
#include "live/PanelGrid.h"
#include "live/PeriodEndCard.h"
#include "live/PlayerPanel.h"
#include "live/RepeatedPress.h"
#include "settings/Settings.h"

#include <QCursor>
#include <QShortcut>

#include <utility>

namespace hooptab {

void frmLIVE::connectShots() {
  connect(m_followUp, &FollowUpBar::chosen, this, &frmLIVE::followUp);
  connect(m_followUp, &FollowUpBar::pressIgnored, this, [this] { say(Text::SecondPress); });
  connect(m_followUp, &FollowUpBar::closed, this, [this] {
    m_askedAbout = {};
    showSelected();
    if (m_afterQuestion)
      std::exchange(m_afterQuestion, {})();
  });
  connect(m_repeats, &RepeatedPress::heldBack, this, [this] {
    m_notices->message().offer(caption(m_texts, Text::OnePress), caption(m_texts, Text::MakeTwo),
                               [this] { m_repeats->carryOut(); });
  });
  connect(m_bench, &BenchPanel::shotAsked, this, &frmLIVE::askBenchShot);
  connect(m_benchShot, &BenchShot::shotPressed, this,
          [this](EventCode kind, bool isMade) { shootFromBench(kind, isMade, std::nullopt); });
  connect(m_benchShot, &BenchShot::courtPressed, this, [this](const QPointF& place, bool isMade) {
    const auto click =
        CourtClick::of({place.x(), place.y()}, playsRightOf(m_benchTeam), zoneMapOf(m_settings));
    if (click)
      shootFromBench(click->kind, isMade, std::pair(click->place.x, click->place.y));
  });
}

void frmLIVE::connectCard() {
  connect(m_card, &PeriodEndCard::nextAsked, this, [this] {
    if (m_game.phase() == LiveGame::Phase::Decided)
      gameOver();
    else
      toggleClock();
  });
  connect(m_card, &PeriodEndCard::eventsAsked, this, [this](Side team) {
    m_events->showOnly(team, m_game.endedPeriod());
    m_card->hide();
  });
  connect(m_card, &PeriodEndCard::checkAsked, this, [this] {
    m_card->hide();
    m_events->leadToCheck();
  });
  connect(m_card, &PeriodEndCard::switchAsked, this, &frmLIVE::switchSides);
  connect(m_card, &PeriodEndCard::substitutionAsked, this, [this] {
    m_card->hide();
    m_bench->askSeveral();
  });
  connect(m_card, &PeriodEndCard::clockAsked, this, &frmLIVE::toggleClock);
  connect(m_card, &PeriodEndCard::closed, this, [this] { setFocus(); });
}

void frmLIVE::connectKeys() {
  connect(m_keys, &LiveKeys::clockPressed, this, &frmLIVE::toggleClock);
  connect(m_keys, &LiveKeys::recorded, this, [this](const KeypadOrder& order) {
    m_notices->message().withdraw();
    if (order.kind == KeypadOrder::Kind::Shot)
      afterShot(order.team, order.player, order.code, order.isMade);
    else if (order.kind == KeypadOrder::Kind::Action || order.kind == KeypadOrder::Kind::OfTeam)
      afterAction(order.team, order.player, order.code);
  });

  // Ahead of any focused button, which Ctrl+Space presses.
  const auto onKey = [this](const QKeySequence& key, auto handler) {
    auto* shortcut = new QShortcut(key, this);
    shortcut->setContext(Qt::WidgetWithChildrenShortcut);
    shortcut->setAutoRepeat(false);
    connect(shortcut, &QShortcut::activated, this, handler);
  };
  onKey(Qt::Key_Space, &frmLIVE::toggleClock);
  onKey(Qt::Key_Question, &frmLIVE::markDoubtful);
  onKey(static_cast<Qt::Key>(MessageLine::kKey), [this] { m_notices->message().carryOut(); });
  onKey(Qt::Key_Escape, [this] {
    if (m_card->isVisible())
      m_card->hide();
    else
      m_bench->clearSelection();
  });
}

void frmLIVE::pressCourt(Slot slot, const QPointF& place, bool isMade) {
  const auto click = CourtClick::of({place.x(), place.y()}, playsRight(slot), zoneMapOf(m_settings));
  if (click)
    shoot(slot, click->kind, isMade, std::pair(click->place.x, click->place.y));
}

void frmLIVE::shoot(Slot slot, EventCode kind, bool isMade, std::optional<std::pair<double, double>> place) {
  const Side team = slot.team();
  const int player = m_game.playerIn(slot);
  m_notices->message().withdraw(); // what it offers was about the event before
  if (isOwed(team, player, kind))
    return throwFree(isMade);
  if (!m_session.change()->recordShot(team, player, kind, isMade, place))
    return;
  m_repeats->noteRecorded();
  if (m_bench->isSelected(team, player))
    m_bench->clearSelection();
  afterShot(team, player, kind, isMade);
}

// Beside the shooter's panel. Of one who is not on court it was forgotten that he came in.
void frmLIVE::afterShot(Side team, int player, EventCode kind, bool isMade) {
  m_correction->end();
  if (!isMade && !m_settings.asksRebounds && !std::exchange(m_hasMissed, true))
    say(Text::MissedAskRebound);
  ask(team, player, kind, isMade);
  tellTarget(team, kind, isMade);
  if (m_game.slotOf(team, player))
    return;
  const EventPlace shot = m_game.lastShot();
  m_afterQuestion = [this, shot, team, player] { offerToPutIn(shot, team, player); };
  if (!m_followUp->isOpen())
    std::exchange(m_afterQuestion, {})();
}

void frmLIVE::offerToPutIn(const EventPlace& event, Side team, int player) {
  const RosterPlayer* who = m_game.game().roster[team].player(player);
  if (who == nullptr)
    return;
  const std::string name = m_game.game().details.abbreviation[team] + " " + who->jersey + " " + who->name;
  m_notices->message().offer(toQt(m_texts.withPlaceholder(Text::WasNotOnCourt, name)),
                             caption(m_texts, Text::PutIn),
                             [this, event, team, player] { m_requests->putIn(event, team, player); });
}

void frmLIVE::askBenchShot(Side team, int player, const QPoint& place) {
  const RosterPlayer* who = m_game.game().roster[team].player(player);
  if (who == nullptr || !m_game.canRecord())
    return;
  m_benchTeam = team;
  m_benchPlayer = player;
  m_benchShot->ask(toQt(who->jersey + " " + who->name), playsRightOf(team), place);
}

void frmLIVE::shootFromBench(EventCode kind, bool isMade, std::optional<std::pair<double, double>> place) {
  m_followUp->ignoreSecondPress(QCursor::pos());
  m_notices->message().withdraw();
  if (!m_session.change()->recordShot(m_benchTeam, m_benchPlayer, kind, isMade, place))
    return;
  m_bench->clearSelection();
  afterShot(m_benchTeam, m_benchPlayer, kind, isMade);
}

void frmLIVE::followUp(const FollowUpQuestion::Answer& answer, EventCode kind) {
  const EventPlace event = m_asked;
  const EventKind* what = kindOf(kind);
  if (what != nullptr && what->isOfTeam) {
    if (kind == EventCode::XTV)
      (void)m_session.change()->giveToTeam(event);
    else if (event.period == m_game.period()) // no team has the rebound of a shot that the period ended with
      (void)m_session.change()->recordOfTeam(answer.team, kind);
    return;
  }
  if (!m_session.change()->recordFollowUp(event, answer.team, answer.player, kind))
    return;
  if (answer.comesIn)
    m_requests->putIn(event, answer.team, answer.player);
  else if (!answer.isOnCourt)
    offerToPutIn(event, answer.team, answer.player);
}

void frmLIVE::act(Slot slot, EventCode kind) {
  if (record(slot.team(), m_game.playerIn(slot), kind))
    m_repeats->noteRecorded();
}

// A player is selected for one action: a finger that slips onto the button twice gives no second foul.
bool frmLIVE::record(Side team, int player, EventCode kind) {
  m_notices->message().withdraw();
  const bool isRecorded = m_session.change()->recordAction(team, player, kind);
  if (m_bench->isSelected(team, player))
    m_bench->clearSelection();
  if (isRecorded)
    afterAction(team, player, kind);
  return isRecorded;
}

// The last of what was recorded; once more, and it is in doubt no longer.
void frmLIVE::markDoubtful() {
  m_session.change()->writePending();
  const auto last = m_game.lastRecorded();
  if (!last)
    return;
  const std::size_t event = *m_game.game().events.indexOf(*last);
  const bool isDoubtful = !m_game.game().events[event].isDoubtful;
  const std::string name = EventWords(m_game.game(), m_texts).shortWords(event);
  if (!m_session.change()->setDoubtful(*last, isDoubtful))
    return;
  m_notices->message().say(
      toQt(m_texts.withPlaceholder(isDoubtful ? Text::NowDoubtful : Text::NoLongerDoubtful, name)));
}

} // namespace hooptab
