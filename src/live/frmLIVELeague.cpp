// What a league's sheet asks for, in the live window: who drew a foul and the free throws behind it, steals
// and blocks, kinds of events, time-outs, the possession arrow, and what a team does.
#include "live/frmLIVE.h"

#include "appearance/relabel.h"
#include "events/CorrectionBar.h"
#include "events/EventRequests.h"
#include "events/FollowUpBar.h"
#include "events/FreeThrowBar.h"
#include "events/MessageLine.h"
#include "events/PassingMenu.h"
#include "game/DetailWords.h"
#include "game/EventDetails.h"
#include "game/Rules.h"
#include "game/TimeOuts.h"
#include "live/LiveKeys.h"
#include "live/LiveNotices.h"
#include "live/PanelGrid.h"
#include "live/PlayerPanel.h"
#include "scoreboard/ScorePanel.h"
#include "settings/Settings.h"
#include "storage/Placeholders.h"

#include <QCursor>
#include <QShortcut>

namespace hooptab {

namespace {

constexpr int kKindColumns = 2;
constexpr std::string_view kFastBreak = "F";
constexpr qint64 kSlip = 1000; // milliseconds

QRect placeOf(const QWidget& widget) {
  return {widget.mapToGlobal(QPoint(0, 0)), widget.size()};
}

} // namespace

void frmLIVE::connectLeague() {
  m_throwBar = new FreeThrowBar(m_texts, this);
  m_throwBar->setTyping(
      [this] { return m_keys->isTyping() || m_followUp->isOpen() || m_correction->isActive(); });
  m_keys->setTaker([this](const KeypadOrder& order) {
    const bool isThrow =
        order.kind == KeypadOrder::Kind::Shot && isOwed(order.team, order.player, order.code);
    if (isThrow)
      throwFree(order.isMade);
    return isThrow;
  });
  connect(m_throwBar, &FreeThrowBar::thrown, this, &frmLIVE::throwFree);
  connect(m_throwBar, &FreeThrowBar::awardedAsked, this, [this](int awarded) {
    const bool wasOpen = m_throws.isOpen();
    m_throws.setAwarded(*m_session.change(), awarded);
    showThrows();
    if (wasOpen && !m_throws.isOpen() && !m_throws.taken().empty()) // the one that was taken was the last
      ask(m_throws.team(), m_throws.shooter(), EventCode::GFT, m_throws.taken().back());
  });
  connect(m_throwBar, &FreeThrowBar::kindAsked, this, [this](const std::string& kind) {
    m_throws.setKind(*m_session.change(), kind);
    showThrows();
  });
  connect(m_throwBar, &FreeThrowBar::closeAsked, this, [this] {
    m_throws.end();
    showThrows();
  });
  // A second press where it stood is none on what it has covered.
  connect(m_throwBar, &FreeThrowBar::clicked, this, [this] {
    if (!m_throws.isOpen())
      m_followUp->ignoreSecondPress(QCursor::pos());
  });
  connect(m_followUp, &FollowUpBar::named, this, &frmLIVE::nameOpponent);
  connect(m_followUp, &FollowUpBar::chipChosen, this, [this](std::string_view key, const std::string& value) {
    (void)m_session.change()->setDetailsOf(m_asked, {{key, value}});
  });
  m_followUp->setPlayerFinder([this](const QWidget& pressed) -> std::optional<FollowUpQuestion::Answer> {
    for (const Slot slot : kSlots) {
      if (const PlayerPanel& panel = m_panels->panel(slot);
          &panel == &pressed || panel.isAncestorOf(&pressed))
        return FollowUpQuestion::Answer{.team = slot.team(), .player = m_game.playerIn(slot)};
    }
    return std::nullopt;
  });
  connect(m_score, &ScorePanel::timeOutAsked, this, [this](Side team) { takeTimeOut(team); });
  connect(m_score, &ScorePanel::arrowAsked, this, &frmLIVE::setArrow);
  connect(m_score, &ScorePanel::teamMenuAsked, this, &frmLIVE::showTeamMenu);
  const auto onKey = [this](const QKeySequence& key, auto step) {
    auto* shortcut = new QShortcut(key, this);
    shortcut->setContext(Qt::WidgetWithChildrenShortcut);
    shortcut->setAutoRepeat(false);
    shortcut->setEnabled(false);
    connect(shortcut, &QShortcut::activated, this, step);
    m_leagueKeys.push_back(shortcut);
  };
  onKey(Qt::CTRL | Qt::Key_Left, [this] { takeTimeOut(m_score->teamOnTheLeft()); });
  onKey(Qt::CTRL | Qt::Key_Right, [this] { takeTimeOut(otherSide(m_score->teamOnTheLeft())); });
  // A held ball turns the arrow; the first one of a game is set by a click.
  onKey(Qt::CTRL | Qt::Key_Up, [this] {
    if (const auto arrow = m_game.arrow())
      setArrow(otherSide(*arrow));
    else
      say(Text::ArrowUnknown);
  });
}

// --- Questions

void frmLIVE::ask(Side team, int player, EventCode kind, bool isMade) {
  m_followUp->dismiss(); // which may answer what was asked before
  m_asked = m_game.lastAdded();
  const auto followUps = m_game.followUps(team, player, kind, isMade, m_settings.asksRebounds);
  const auto slot = m_game.slotOf(team, player);
  offerChips(kind);
  m_followUp->ask(m_game, followUps, {team, player, kind}, slot ? placeOf(m_panels->panel(*slot)) : QRect(),
                  placeOf(*m_panels));
  m_askedAbout = m_followUp->isOpen() ? EventCorrection::Who{team, player} : EventCorrection::Who();
  showSelected();
}

// Of a foul its kind, in letters; where all is recorded, those of turnovers and shots in words.
void frmLIVE::offerChips(EventCode kind) {
  if (kind == EventCode::SPF && m_game.level() != RecordingLevel::Basic) {
    std::vector<DetailChip> kinds = foulChips(m_texts);
    const auto count = static_cast<int>(kinds.size());
    return m_followUp->offerChips(std::move(kinds), count);
  }
  const EventKind* what = kindOf(kind);
  const bool isShot = what != nullptr && what->isShot && kind != EventCode::GFT;
  std::vector<DetailChip> chips;
  if (m_game.level() == RecordingLevel::Full && (isShot || kind == EventCode::STO)) {
    for (const KindWord& word : detailKinds(kind)) {
      const QString words = caption(m_texts, word.text);
      chips.push_back({detail_key::kKind, std::string(word.value), words, words});
    }
  }
  if (isShot && !chips.empty()) {
    const QString words = caption(m_texts, Text::FastBreak);
    chips.push_back({detail_key::kFastBreak, std::string(kFastBreak), words, words});
  }
  m_followUp->offerChips(std::move(chips), kKindColumns);
}

void frmLIVE::afterAction(Side team, int player, EventCode kind) {
  if (m_game.level() == RecordingLevel::Basic)
    return;
  m_correction->end();
  if (isFoul(kind) || kind == EventCode::STO)
    ask(team, player, kind, false);
  if (kind == EventCode::XCF &&
      isCoachOut(m_game.game().details, benchTechnicalsOf(m_game.game().events, team)))
    tell(toQt(m_texts.withPlaceholder(Text::CoachIsOut, m_game.game().details.abbreviation[team])));
}

// The clock decides no game that is played to a score.
void frmLIVE::tellTarget(Side team, EventCode kind, bool isMade) {
  const int target = m_game.game().details.targetScore;
  const EventKind* shot = kindOf(kind);
  const int points = m_game.state().points(team);
  if (!isMade || shot == nullptr || target <= 0 || points < target || points - shot->points >= target)
    return;
  m_notices->message().offer(
      toQt(withPlaceholders(m_texts.text(Text::TargetReached), m_game.game().details.abbreviation[team],
                            std::to_string(target))),
      caption(m_texts, Text::GameOverMenu), [this] { gameOver(); });
}

void frmLIVE::nameOpponent(const FollowUpQuestion::Answer& answer) {
  const GameEvent* foul = m_game.game().events.find(m_asked);
  const RosterPlayer* who = m_game.game().roster[answer.team].player(answer.player);
  if (foul == nullptr || who == nullptr)
    return;
  const bool isPersonal = foul->code == EventCode::SPF;
  const EventPlace place = m_asked; // the answer may put the player in, which is an event of its own
  if (isPersonal &&
      !m_session.change()->setDetailsOf(
          place, {{detail_key::kDrawnBy, std::to_string(numberOf(answer.team)) + '-' + who->jersey}}))
    return;
  if (answer.comesIn)
    m_requests->putIn(place, answer.team, answer.player);
  m_throws.begin(m_game, place, answer.team, answer.player);
  const auto slot = m_game.slotOf(answer.team, answer.player);
  m_throwBar->open(m_game, m_throws, slot ? placeOf(m_panels->panel(*slot)) : QRect(), placeOf(*m_panels));
}

bool frmLIVE::isOwed(Side team, int player, EventCode kind) const {
  return kind == EventCode::GFT && m_throws.isOpen() && team == m_throws.team() &&
         player == m_throws.shooter();
}

void frmLIVE::showThrows() {
  m_throws.gameChanged(m_game);
  m_throwBar->showThrows(m_throws);
  // Who leaves the court leaves it where it stands, in nobody's way.
  const auto slot = m_game.slotOf(m_throws.team(), m_throws.shooter());
  if (m_throws.isOpen() && slot)
    m_throwBar->stand(placeOf(m_panels->panel(*slot)), placeOf(*m_panels));
}

void frmLIVE::showLeague() {
  for (QShortcut* key : m_leagueKeys)
    key->setEnabled(m_game.level() != RecordingLevel::Basic);
  showThrows();
}

void frmLIVE::throwFree(bool isMade) {
  m_notices->message().withdraw();
  const Side team = m_throws.team();
  const int shooter = m_throws.shooter();
  if (!m_throws.shoot(*m_session.change(), isMade)) {
    m_throws.end();
    return showThrows();
  }
  showThrows();
  if (m_throws.isOpen())
    tellTarget(team, EventCode::GFT, isMade);
  else
    afterShot(team, shooter, EventCode::GFT, isMade);
}

// --- What teams do

// A second press or key within a moment: nobody takes two, or turns the arrow twice.
bool frmLIVE::isSlip(EventCode kind, Side team) {
  const bool isSame = m_lastOfTeam == std::pair(kind, kind == EventCode::XAR ? Side::Visitor : team);
  const bool isSoon = m_sinceOfTeam.isValid() && !m_sinceOfTeam.hasExpired(kSlip);
  if (isSame && isSoon)
    say(Text::SecondPress);
  return isSame && isSoon;
}

void frmLIVE::noteOfTeam(EventCode kind, Side team) {
  m_lastOfTeam = {kind, kind == EventCode::XAR ? Side::Visitor : team};
  m_sinceOfTeam.start();
}

void frmLIVE::takeTimeOut(Side team, const std::string& kind) {
  if (isSlip(EventCode::XTO, team))
    return;
  const auto left =
      timeOutsOf(m_game.game().details, m_game.game().events, team, m_game.period(), m_game.clockSeconds());
  if (!recordOfTeam(team, EventCode::XTO, kind))
    return;
  noteOfTeam(EventCode::XTO, team);
  if (!isRunning())
    m_score->beginTimeOut(team);
  if (left && left->left == 0)
    tell(toQt(m_texts.withPlaceholder(Text::NoTimeOutLeft, m_game.game().details.abbreviation[team])));
}

void frmLIVE::setArrow(Side team) {
  if (m_game.arrow() == team || isSlip(EventCode::XAR, team))
    return;
  if (!recordOfTeam(team, EventCode::XAR, {}))
    return;
  noteOfTeam(EventCode::XAR, team);
  tell(toQt(m_texts.withPlaceholder(Text::ArrowTurned, m_game.game().details.abbreviation[team])));
}

bool frmLIVE::recordOfTeam(std::optional<Side> team, EventCode kind, const std::string& detail) {
  m_notices->message().withdraw();
  LiveGame::Details details;
  if (!detail.empty())
    details.emplace_back(detail_key::kKind, detail);
  if (!m_session.change()->recordOfTeam(team, kind, details))
    return false;
  if (team)
    afterAction(*team, 0, kind);
  return true;
}

void frmLIVE::showTeamMenu(Side team, const QPoint& place) {
  auto* menu = new PassingMenu(this);
  const auto add = [&](Text text, EventCode kind, const char* detail = "", bool isNobodys = false) {
    QString words = caption(m_texts, text); // as in the list of events, where they follow a name
    words[0] = words[0].toUpper();
    connect(menu->addAction(words), &QAction::triggered, this,
            [=, this] { (void)recordOfTeam(isNobodys ? std::nullopt : std::optional(team), kind, detail); });
  };
  add(Text::TeamOffensiveRebound, EventCode::XOR);
  add(Text::TeamDefensiveRebound, EventCode::XDR);
  add(Text::TeamTurnover, EventCode::XTV);
  menu->addSeparator();
  add(Text::CoachTechnical, EventCode::XCF, "C");
  add(Text::BenchTechnical, EventCode::XCF, "B");
  menu->addSeparator();
  connect(menu->addAction(caption(m_texts, Text::ShortTimeOutOf)), &QAction::triggered, this,
          [this, team] { takeTimeOut(team, "SHORT"); });
  add(Text::MediaTimeOut, EventCode::XTO, "MEDIA", true);
  menu->popup(place);
}

} // namespace hooptab
