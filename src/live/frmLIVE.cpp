#include "live/frmLIVE.h"

#include "appearance/Dialogs.h"
#include "appearance/PlainText.h"
#include "appearance/Theme.h"
#include "appearance/relabel.h"
#include "assistant/frmBENCH.h"
#include "events/BenchShot.h"
#include "events/CorrectionBar.h"
#include "events/EventRequests.h"
#include "events/FollowUpBar.h"
#include "events/JerseyButton.h"
#include "events/LiveEventPanel.h"
#include "events/MessageLine.h"
#include "game/RuleSets.h"
#include "live/BenchPanel.h"
#include "live/HeldKeys.h"
#include "live/LiveFile.h"
#include "live/LiveKeys.h"
#include "live/LiveNotices.h"
#include "live/NowStrip.h"
#include "live/PanelGrid.h"
#include "live/PeriodEndCard.h"
#include "live/PlayerPanel.h"
#include "live/RepeatedPress.h"
#include "live/RosterStrip.h"
#include "live/SideSwitch.h"
#include "live/frmGAMEOVER.h"
#include "live/frmOVERTIME.h"
#include "scoreboard/ScorePanel.h"
#include "settings/Settings.h"
#include "storage/Module1.h"
#include "storage/Placeholders.h"

#include <QApplication>
#include <QBoxLayout>
#include <QDateTime>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFileInfo>
#include <QLabel>
#include <QMimeData>
#include <QScopedValueRollback>
#include <QScrollArea>
#include <bit>
#include <chrono>
#include <utility>

namespace hooptab {

namespace {

using namespace std::chrono_literals;

constexpr auto kTick = 250ms; // the clock is computed, not counted: a late tick loses nothing
constexpr auto kLockTick = 200ms;

} // namespace

frmLIVE::frmLIVE(ProfileStore& store, Settings& settings, const Texts& texts, Dialogs& dialogs,
                 TimeSource& time, QWidget* parent)
    : ChildWindow(parent), m_store(store), m_settings(settings), m_texts(texts), m_dialogs(dialogs),
      m_session(store, time) {
  m_session.change()->disk().setRescueFolder(settings.folder());
  setObjectName(QStringLiteral("frmLIVE"));
  setAcceptDrops(true);
  setFocusPolicy(Qt::StrongFocus); // so that the clock's key is ours from the start
  m_timer.setObjectName(QStringLiteral("Timer1"));
  m_timer.setInterval(kTick);
  m_lock.setInterval(kLockTick);
  m_sinceBegin.start();

  m_parts = new QHBoxLayout;
  m_panelScroll = makeScroll(makePanels());
  m_sideScroll = makeScroll(makeSide());
  m_sideScroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  m_parts->addWidget(m_panelScroll, 1);
  m_parts->addWidget(m_sideScroll);
  m_now = new NowStrip(m_texts, this);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->addLayout(m_parts, 1);
  layout->addWidget(m_now);
  m_card = new PeriodEndCard(m_texts, this);
  m_notices = new LiveNotices(m_texts, this);
  m_file = new LiveFile(m_session, m_store.files(), m_texts, m_dialogs, *m_now, *m_notices, *this);
  layout->insertWidget(0, &m_file->strip());
  m_followUp = new FollowUpBar(m_texts, this);
  m_benchShot = new BenchShot(m_settings, m_texts, this);
  // Each sees what comes from keyboard and mouse before those that were made before it.
  m_keys = new LiveKeys(m_session, m_settings, m_texts, *m_followUp, *m_events, *this);
  m_repeats = new RepeatedPress(*this);
  new HeldKeys(this);
  m_requests = new EventRequests(m_session, *m_events, m_settings, m_texts, m_dialogs, *this);
  connectEverything();
  m_listening = m_session.listen([this](const GameNews& news) { hear(news); });
  // To where what is thrown in an event of the window goes.
  m_session.onFailure([](const std::exception_ptr& failure) {
    QMetaObject::invokeMethod(
        qApp, [failure] { std::rethrow_exception(failure); }, Qt::QueuedConnection);
  });
}

frmLIVE::~frmLIVE() = default;

// What does not fit, as on a small screen or with a large zoom, can be scrolled.
QScrollArea* frmLIVE::makeScroll(QWidget* content) {
  auto* area = new QScrollArea(this);
  area->setFrameShape(QFrame::NoFrame);
  area->setWidgetResizable(true);
  area->setFocusPolicy(Qt::NoFocus);
  area->setWidget(content);
  return area;
}

QWidget* frmLIVE::makePanels() {
  m_panels = new PanelGrid(this);
  m_sides = new SideSwitch(m_texts, this);
  m_bench = new BenchPanel(m_texts, m_panels, m_sides, this);
  m_panels->fill({&m_bench->strip(Side::Visitor), &m_bench->strip(Side::Home)}, m_settings, m_texts);
  return m_panels;
}

QWidget* frmLIVE::makeSide() {
  m_side = new QWidget(this);
  m_score = new ScorePanel(m_texts, m_side);
  m_events = new LiveEventPanel(m_texts, m_side);
  auto* layout = new QVBoxLayout(m_side);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(m_score);
  layout->addWidget(m_bench);
  layout->addWidget(m_events, 1);
  return m_side;
}

void frmLIVE::connectEverything() {
  connect(&m_timer, &QTimer::timeout, this, &frmLIVE::tick);
  connect(m_file, &LiveFile::taken, this, [this] { (void)open(path()); });
  for (PlayerPanel* panel : m_panels->panels()) {
    connect(panel, &PlayerPanel::courtPressed, this, &frmLIVE::pressCourt);
    connect(panel, &PlayerPanel::shotPressed, this,
            [this](Slot slot, EventCode kind, bool isMade) { shoot(slot, kind, isMade); });
    connect(panel, &PlayerPanel::actionPressed, this, &frmLIVE::act);
  }
  connect(m_score, &ScorePanel::startAsked, this, &frmLIVE::toggleClock);
  connect(m_score, &ScorePanel::returnAsked, this, [this] { m_session.change()->returnToEndedPeriod(); });
  connect(m_sides, &SideSwitch::asked, this, &frmLIVE::switchSides);
  connect(m_score, &ScorePanel::periodAsked, this, [this](int period) {
    m_session.change()->setPeriod(period);
    showGame(); // also where it was refused
  });
  connect(m_score, &ScorePanel::clockAsked, this, [this](int seconds) {
    m_session.change()->setClock(seconds);
    showGame(); // also where it was refused
  });
  connect(m_notices, &LiveNotices::clockChosen, this, [this](int seconds) {
    const LiveGame::Phase before = m_game.phase();
    m_offersClock = false;
    {
      const auto change = m_session.change();
      if (!change->settleStop(seconds))
        change->setClock(seconds); // it was stopped when the window was closed
    }
    withdrawAfter(before);
  });
  connect(m_score, &ScorePanel::colourAsked, this, &frmLIVE::chooseColour);
  connect(m_bench, &BenchPanel::toggled, this, [this](Side team, int player) {
    m_notices->message().withdraw();
    m_session.change()->toggleOnCourt(team, player);
  });
  connect(m_bench, &BenchPanel::allOutAsked, this,
          [this](Side team) { m_session.change()->takeAllOut(team); });
  connect(m_bench, &BenchPanel::onCourtAsked, this, &frmLIVE::setOnCourt);
  connect(m_bench, &BenchPanel::clockAsked, this, &frmLIVE::toggleClock);
  connect(m_bench, &BenchPanel::selected, this, &frmLIVE::showSelected);
  connect(m_bench, &BenchPanel::actionAsked, this, &frmLIVE::record);
  connect(m_requests, &EventRequests::done, this, [this] { m_notices->message().withdraw(); });
  connect(m_requests, &EventRequests::clockAsked, this, &frmLIVE::toggleClock);
  connect(m_requests, &EventRequests::startTakenBack, this, [this] { say(Text::StartTakenBack); });
  connect(m_sides, &SideSwitch::rowsStayAsked, this, [this](bool stay) {
    m_rowsStay = stay;
    showSides();
  });
  connect(&m_lock, &QTimer::timeout, this, [this] {
    m_score->showGame(m_game);
    m_card->showGame(m_game);
    if (m_game.startLock() == 0)
      m_lock.stop();
  });
  connect(m_now, &NowStrip::resized, this, &frmLIVE::placeOverlays);
  connect(m_now, &NowStrip::keysAsked, m_keys, &LiveKeys::showSheet);
  connectShots();
  connectCard();
  connectKeys();
  connectPlayers();
  connectLeague();
}

void frmLIVE::resizeEvent(QResizeEvent*) {
  placeOverlays();
}

// What comes while one records must not move what is being pressed: notices lie over the oldest of the
// events, the card of a period's end below the clock.
void frmLIVE::placeOverlays() {
  layout()->activate();
  const QRect column(m_sideScroll->mapTo(this, QPoint(0, 0)), m_sideScroll->size());
  const QRect line = m_now->middle().translated(m_now->pos());
  m_notices->placeIn(column, line);
  m_correction->setGeometry(line);
  const int top = m_score->mapTo(this, QPoint(0, m_score->bottomOfClock())).y() + m_side->layout()->spacing();
  const int height = std::min(m_card->layout()->totalHeightForWidth(column.width()), column.height());
  m_card->setGeometry(column.left(), std::min(top, column.bottom() + 1 - height), column.width(), height);
}

// Gaps and the column's width, by the measure in use.
void frmLIVE::applyMeasure() {
  const Measure& measure = Theme::measure();
  const int edge = measure(6, 10);
  const int gap = measure(5, 9);
  m_parts->setContentsMargins(edge, edge, edge, edge);
  m_parts->setSpacing(edge);
  m_panels->applyMeasure();
  m_side->layout()->setSpacing(gap);
  const int column = measure(276, 384);
  m_sideScroll->setFixedWidth(column);
  m_side->setMaximumWidth(column);
  placeOverlays();
}

frmLIVE::Opening frmLIVE::open(const QString& path, GameLock lock) {
  GameDetails details; // a file that cannot be read is told about below
  if (GameFile(m_store, fromQt(path)).readDetails(details) == GameFileProblem::None &&
      details.impossibleMinutes.value_or(0) > kMostMinutes) {
    m_dialogs.warn(
        this, toQt(m_texts.text(Text::ErrorTitle)),
        toQt(m_texts.withPlaceholder(Text::PeriodTooLong, std::to_string(*details.impossibleMinutes))));
    return Opening::Refused;
  }
  if (!mayClose()) // what is open now
    return Opening::Refused;
  m_afterQuestion = {};
  m_followUp->dismiss();
  const qint64 fileTime = QFileInfo(path).lastModified().toSecsSinceEpoch();
  {
    const QScopedValueRollback<bool> opening(m_isOpening, true);
    m_problem = m_file->open(path, std::move(lock));
  }
  if (m_problem != GameFileProblem::None)
    return Opening::Problem;
  m_notices->forget();
  m_card->hide();
  m_throws.end();
  m_score->endTimeOuts();
  m_endedPeriod = m_game.endedPeriod(); // an end of another day is no news
  m_isSwitched = false;
  m_correction->end();
  m_hasMissed = false;
  m_sides->begin();
  m_bench->stopSubstituting();
  m_bench->clearSelection();
  const bool wasClosed = m_game.wasClosedInPlay();
  m_offersClock = true; // where there is one to be chosen
  m_notices->offerClock(LostStop::of(m_game.clockSeconds(),
                                     wasClosed ? m_game.game().details.closedInPlay.time : fileTime,
                                     QDateTime::currentSecsSinceEpoch()),
                        wasClosed);
  m_keys->forget();
  relabelWindow();
  emit commandStateChanged();
  if (const auto& count = m_game.log().outOfRange()) { // the game goes on all the same
    m_dialogs.warn(
        this, toQt(m_texts.text(Text::WarningTitle)),
        toQt(withPlaceholders(m_texts.text(Text::CountOutOfRange), fromQt(QFileInfo(path).fileName()),
                              m_game.game().details.abbreviation[count->team] + " " + count->what)));
  }
  QTimer::singleShot(0, this, &frmLIVE::askFives); // when the window stands
  return Opening::Opened;
}

bool frmLIVE::writeCopy(const QString& path) {
  return m_session.change()->writeCopy(fromQt(path));
}

GameHold& frmLIVE::hold() const {
  return m_file->hold();
}

QString frmLIVE::path() const {
  return toQt(m_game.game().path);
}

void frmLIVE::hear(const GameNews& news) {
  m_file->tell(news.foreign);
  if (m_isOpening)
    return;
  if (!news.isOfGame())
    return m_file->show();
  showGame();
}

void frmLIVE::showGame() {
  m_panels->showGame(m_game);
  m_score->showGame(m_game);
  m_sides->showGame(m_game);
  m_bench->showGame(m_game);
  m_now->showGame(m_game);
  m_now->showPending(pendingWords());
  m_correction->gameChanged();
  showSelected();
  m_events->showGame(m_game);
  showLeague();
  m_file->show();
  m_offersClock = m_offersClock && (m_game.isStopLost() || m_game.wasClosedInPlay());
  m_notices->showLostStop(m_offersClock);
  showPeriodEnd();
  if (isRunning() != m_timer.isActive()) {
    if (isRunning())
      m_timer.start();
    else
      m_timer.stop();
    emit commandStateChanged();
  }
  const auto& details = m_game.game().details;
  setWindowTitle(asTitle(
      QStringLiteral("%1 - %2 %3 - %4 %5")
          .arg(toQt(m_texts.text(Text::LiveTitle)), toQt(details.abbreviation[Side::Visitor]),
               QString::number(m_game.state().points(Side::Visitor)),
               QString::number(m_game.state().points(Side::Home)), toQt(details.abbreviation[Side::Home]))));
}

// For the next action, or whom a question is about: an assist, a rebound, whose an event is.
void frmLIVE::showSelected() {
  const EventCorrection::Who asked = m_correction->isActive() ? m_correction->whose() : m_askedAbout;
  m_panels->setSelected([&](Slot slot) {
    const Side team = slot.team();
    const int player = m_game.playerIn(slot);
    return m_bench->isSelected(team, player) || (player > 0 && asked == EventCorrection::Who{team, player});
  });
}

void frmLIVE::showTime() {
  m_panels->showTime(m_game);
  m_score->showTime(m_game);
  m_bench->showTime(m_game);
  m_now->showTime(m_game);
}

// "4 of 5 on court: who comes in? (05:23)"
QString frmLIVE::pendingWords() const {
  const auto& pending = m_game.pending();
  if (!pending)
    return {};
  std::string counts;
  for (const Side team : kSides) {
    const OnCourt now = m_game.onCourt();
    if (now[team] != pending->before[team])
      counts += (counts.empty() ? "" : ", ") + m_game.game().details.abbreviation[team] + " " +
                std::to_string(std::popcount(now[team]));
  }
  return toQt(withPlaceholders(m_texts.text(Text::SubstitutionPending), counts,
                               Module1::clockText(pending->clockSeconds)));
}

// --- Clock

void frmLIVE::toggleClock() {
  if (!m_toggles.mayToggle(m_sinceBegin.elapsed()))
    return refuseClock(Text::ToggledTwice);
  m_followUp->settle();
  const LiveGame::Phase before = m_game.phase();
  if (before != LiveGame::Phase::Running && m_followUp->isOpen()) {
    m_followUp->refuse(Text::AnswerFirst);
    return m_score->showRefused();
  }
  if (before != LiveGame::Phase::Running && m_game.startLock() > 0)
    return refuseClock(Text::PeriodJustEnded);
  if (before == LiveGame::Phase::OvertimeAsked)
    return askOvertime();
  m_session.change()->toggleClock();
  withdrawAfter(before);
  tellMissing();
}

void frmLIVE::refuseClock(Text text) {
  m_score->showRefused();
  say(text);
}

void frmLIVE::say(Text text) {
  tell(caption(m_texts, text));
}

void frmLIVE::tell(const QString& words) {
  m_notices->message().say(words);
}

void frmLIVE::tick() {
  const LiveGame::Phase before = m_game.phase();
  m_session.change()->tick();
  withdrawAfter(before);
  showTime();
}

void frmLIVE::withdrawAfter(LiveGame::Phase before) {
  if (m_game.phase() != before)
    m_notices->message().withdraw(); // what it was about is over
}

// The card comes with the end of a period, and goes when the next one begins.
void frmLIVE::showPeriodEnd() {
  const int ended = m_game.endedPeriod();
  if (ended > 0 && ended != m_endedPeriod)
    m_card->open(m_game);
  m_endedPeriod = ended;
  m_card->setToCheck(m_events->findings(), m_events->doubtful());
  m_card->showGame(m_game);
  if (m_card->isVisible())
    placeOverlays();
  if (m_game.startLock() > 0 && !m_lock.isActive())
    m_lock.start();
}

void frmLIVE::askOvertime() {
  // By the rules, or as the overtime before; until then a slip of the hand can be mended by being asked
  // again.
  const GameDetails& details = m_game.game().details;
  const RuleSet* const rules = ruleSetOf(details.ruleSet);
  const bool isFirst = !m_game.isOvertime();
  const int minutes = !isFirst ? details.overtimeMinutes : rules != nullptr ? rules->overtimeMinutes : 0;
  if (minutes > 0) {
    (void)m_session.change()->beginOvertime(minutes, isFirst ? rules->keepsFouls : details.keepsBonus);
    return;
  }
  frmOVERTIME window(m_game.game().details, m_texts, this);
  if (window.exec() != QDialog::Accepted)
    return;
  m_session.change()->beginOvertime(window.minutes(), window.keepsFouls());
}

void frmLIVE::gameOver() {
  if (m_game.phase() == LiveGame::Phase::ReadOnly)
    return m_dialogs.inform(this, toQt(m_texts.text(Text::WarningTitle)), m_file->strip().toolTip());
  if (isRunning()) {
    if (!m_dialogs.ask(this, toQt(m_texts.text(Text::WarningTitle)),
                       toQt(m_texts.text(Text::GameOverInPlay))))
      return;
    m_session.change()->stop();
  }
  frmGAMEOVER window(m_game.game().details, m_texts, m_dialogs, this);
  window.exec();
  switch (window.choice()) {
  case frmGAMEOVER::Choice::None: break;
  case frmGAMEOVER::Choice::Close: m_session.change()->finish(window.notes()); break;
  case frmGAMEOVER::Choice::Continue: m_session.change()->saveNotes(window.notes()); break;
  case frmGAMEOVER::Choice::Reopen: m_session.change()->reopen(); break;
  }
}

void frmLIVE::setOnCourt(const OnCourt& onCourt) {
  m_notices->message().withdraw();
  m_session.change()->setOnCourt(onCourt);
}

void frmLIVE::setKeypad(const KeypadSetup& setup) {
  m_keys->setSetup(setup);
}

void frmLIVE::keypadSwitched() {
  m_keys->forget();
  m_keys->relabelKeys();
}

void frmLIVE::switchSides() {
  m_isSwitched = !m_isSwitched;
  showSides();
  showThrows();
}

void frmLIVE::showSides() {
  m_panels->setTurned(m_isSwitched && !m_rowsStay); // with the sides, unless they were asked to stay
  for (const Slot slot : kSlots)
    m_panels->panel(slot).setPlaysRight(playsRight(slot));
  m_score->setSides(m_isSwitched, m_rowsStay);
  m_sides->setSides(m_isSwitched, m_rowsStay);
  for (const Side team : kSides)
    m_bench->strip(team).setPlaysRight(playsRightOf(team));
}

void frmLIVE::chooseColour(Side team) {
  if (m_game.phase() == LiveGame::Phase::ReadOnly)
    return;
  const std::uint32_t colour = m_game.game().details.teamColour[team];
  const QColor chosen =
      m_dialogs.chooseColour(this, toQt(m_texts.text(Text::SelectColour)), colourOf(colour));
  if (!chosen.isValid())
    return;
  m_session.change()->setTeamColour(team, storedColour(chosen));
  applyColours();
}

// --- The window

void frmLIVE::relabelWindow() {
  relabel(*this, m_texts);
  m_panels->relabelPanels();
  m_notices->relabelNotices();
  m_card->relabelCard();
  m_score->relabelPanel();
  showSides();
  m_bench->relabelPanel();
  m_events->relabelPanel();
  m_now->relabelStrip();
  m_keys->relabelKeys();
  if (m_assistant != nullptr)
    m_assistant->relabelWindow();
  applyColours();
  showGame();
}

void frmLIVE::applyColours() {
  m_notices->applyColours();
  m_card->applyColours();
  m_benchShot->applyColours();
  m_panels->applyColours();
  m_score->applyColours();
  m_sides->applyColours();
  m_bench->applyColours();
  m_events->applyColours();
  m_now->applyColours();
  if (m_assistant != nullptr)
    m_assistant->applyColours();
  m_correction->relabelBar();
  applyMeasure();
}

void frmLIVE::dragEnterEvent(QDragEnterEvent* event) {
  if (event->mimeData()->hasFormat(playerMimeType()))
    event->acceptProposedAction();
}

void frmLIVE::dropEvent(QDropEvent* event) {
  const std::string dropped = event->mimeData()->data(playerMimeType()).toStdString();
  const std::optional<Side> team = sideOf(Module1::leadingNumber(Module1::field(dropped, 1, '-')));
  const int player = Module1::leadingNumber(Module1::field(dropped, 2, '-'));
  const std::optional<Slot> slot =
      team ? m_panels->slotAt(*team, m_panels->mapFrom(this, event->position().toPoint())) : std::nullopt;
  if (!slot || player < 1 || player > Roster::kLargestEntry)
    return;
  event->acceptProposedAction();
  m_bench->clearSelection(); // which the press that began the drag has made
  const int leaving = m_game.playerIn(*slot);
  if (leaving == 0) {
    (void)m_session.change()->putInSlot(*slot, player);
    return;
  }
  OnCourt wanted = m_game.onCourt();
  unsigned& entries = wanted[*team];
  if (leaving > 0)
    entries &= ~(1U << static_cast<unsigned>(leaving));
  entries |= 1U << static_cast<unsigned>(player);
  setOnCourt(wanted);
}

bool frmLIVE::mayClose() {
  m_followUp->settle();
  if (isRunning() &&
      !m_dialogs.ask(this, toQt(m_texts.text(Text::WarningTitle)), toQt(m_texts.text(Text::CloseInPlay))))
    return false;
  m_session.change()->stopForClosing(QDateTime::currentSecsSinceEpoch());
  return m_file->mayLeave();
}

} // namespace hooptab
