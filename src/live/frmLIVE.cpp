#include "live/frmLIVE.h"

#include "appearance/CourtClick.h"
#include "appearance/Dialogs.h"
#include "appearance/NoticeStrip.h"
#include "appearance/PlainLabel.h"
#include "appearance/PlainText.h"
#include "appearance/Theme.h"
#include "appearance/relabel.h"
#include "live/BenchPanel.h"
#include "live/EventRequests.h"
#include "live/FollowUpBar.h"
#include "live/ForeignWords.h"
#include "live/JerseyButton.h"
#include "live/LiveEventPanel.h"
#include "live/LiveKeys.h"
#include "live/LostStopStrip.h"
#include "live/PlayerPanel.h"
#include "live/ScorePanel.h"
#include "live/frmGAMEOVER.h"
#include "live/frmOVERTIME.h"
#include "storage/Module1.h"
#include "storage/Settings.h"

#include <QBoxLayout>
#include <QDateTime>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFileInfo>
#include <QGridLayout>
#include <QMimeData>
#include <QShortcut>
#include <chrono>

namespace hooptab {

namespace {

using namespace std::chrono_literals;

constexpr int kErrorTitle = 1060;
constexpr int kWarningTitle = 1139;
constexpr int kWindowTitle = 1001;
constexpr int kColourTitle = 1835;
constexpr int kHeldElsewhere = 2382;
constexpr int kTakenOver = 2385;
constexpr int kOtherNames = 2387;
constexpr int kNotOnDiskButRescued = 2394;
constexpr int kForReadingOnly = 1914;
constexpr int kNotOnDisk = 1915;
constexpr int kLeaveUnwritten = 1916;
constexpr int kLeaveRescued = 2457;
constexpr int kPeriodTooLong = 2380;
constexpr int kCountOutOfRange = 1523;

constexpr auto kTick = 250ms; // the clock is computed, not counted: a late tick loses nothing
constexpr auto kRetryInterval = 2s;
constexpr int kGap = 4;
// The side column takes a share of a wide window, so that names and words are not cut there.
constexpr int kLeastSide = 256;
constexpr int kMostSide = 340;
constexpr double kSideShare = 0.187;
constexpr int kPathWidth = 380; // so that what can be done about it stands beside it on a small screen

} // namespace

frmLIVE::frmLIVE(cinifile& store, Settings& settings, const Texts& texts, Dialogs& dialogs, TimeSource& time,
                 QWidget* parent)
    : ChildWindow(parent), m_store(store), m_settings(settings), m_texts(texts), m_dialogs(dialogs),
      m_game(store, time), m_hold(new GameHold(store.files(), texts, dialogs, *this)) {
  m_game.disk().setRescueFolder(settings.folder());
  setObjectName(QStringLiteral("frmLIVE"));
  setAcceptDrops(true);
  setFocusPolicy(Qt::StrongFocus); // so that the clock's key is ours from the start
  m_timer.setObjectName(QStringLiteral("Timer1"));
  m_timer.setInterval(kTick);
  m_retryOfWrites.setInterval(kRetryInterval);
  m_banner = makeBanner("lblNOTONDISK");
  m_banner->setWordWrap(true);
  m_banner->setContentsMargins(2 * kGap, kGap, 2 * kGap, kGap);
  m_readOnly = makeBanner("lblREADONLY");
  m_foreign = new NoticeStrip("picFOREIGN", this);
  m_lostStop = new LostStopStrip(m_texts, this);
  m_lostStop->hide();

  auto* parts = new QHBoxLayout;
  parts->setSpacing(kGap);
  parts->addWidget(makePanels(), 1);
  parts->addWidget(makeSide());
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(kGap, kGap, kGap, kGap);
  layout->setSpacing(kGap);
  for (QWidget* strip : {static_cast<QWidget*>(m_readOnly), static_cast<QWidget*>(m_lostStop)})
    layout->addWidget(strip);
  layout->addLayout(parts, 1);
  m_notices = makeNotices();
  m_followUp = new FollowUpBar(m_texts, this);
  m_keys = new LiveKeys(m_game, m_settings, m_texts, *m_followUp, *m_bench, *this);
  connectEverything();
}

frmLIVE::~frmLIVE() = default;

QLabel* frmLIVE::makeBanner(const char* name) {
  auto* banner = new PlainLabel(this);
  banner->setObjectName(QLatin1String(name));
  banner->setAutoFillBackground(true);
  banner->setAlignment(Qt::AlignCenter);
  banner->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed); // no wider than the window, whoever's path
  banner->hide();
  return banner;
}

// The visitors' five above the home team's.
QWidget* frmLIVE::makePanels() {
  auto* panels = new QWidget(this);
  auto* grid = new QGridLayout(panels);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setSpacing(kGap);
  for (int slot = 0; slot < LiveGame::kSlots; ++slot) {
    auto* panel = new PlayerPanel(slot, m_settings, m_texts, panels);
    grid->addWidget(panel, LiveGame::teamOf(slot), slot % LiveGame::kSlotsOfTeam);
    m_panels[static_cast<std::size_t>(slot)] = panel;
  }
  for (int column = 0; column < LiveGame::kSlotsOfTeam; ++column)
    grid->setColumnStretch(column, 1);
  return panels;
}

QWidget* frmLIVE::makeSide() {
  auto* side = new QWidget(this);
  m_side = side;
  m_score = new ScorePanel(m_texts, side);
  m_bench = new BenchPanel(m_texts, side);
  m_events = new LiveEventPanel(m_texts, side);
  auto* layout = new QVBoxLayout(side);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(kGap);
  layout->addWidget(m_score);
  layout->addWidget(m_bench);
  layout->addWidget(m_events, 1);
  return side;
}

void frmLIVE::connectEverything() {
  connect(&m_timer, &QTimer::timeout, this, &frmLIVE::tick);
  connect(&m_retryOfWrites, &QTimer::timeout, this, &frmLIVE::lookAtFile);
  connect(m_hold, &GameHold::fileChanged, this, &frmLIVE::lookAtFile);
  connect(m_hold, &GameHold::taken, this, [this] { (void)open(path()); });
  for (PlayerPanel* panel : m_panels) {
    connect(panel, &PlayerPanel::courtPressed, this, &frmLIVE::pressCourt);
    connect(panel, &PlayerPanel::shotPressed, this,
            [this](int slot, EventCode kind, bool isMade) { shoot(slot, kind, isMade); });
    connect(panel, &PlayerPanel::actionPressed, this, &frmLIVE::act);
  }
  connect(m_score, &ScorePanel::startAsked, this, &frmLIVE::toggleClock);
  connect(m_score, &ScorePanel::returnAsked, this, [this] { edit(&LiveGame::returnToEndedPeriod); });
  connect(m_score, &ScorePanel::switchAsked, this, &frmLIVE::switchSides);
  connect(m_score, &ScorePanel::periodAsked, this, [this](int period) {
    m_game.setPeriod(period);
    showGame();
  });
  connect(m_score, &ScorePanel::clockAsked, this, [this](int seconds) {
    m_game.setClock(seconds);
    showGame();
  });
  connect(m_lostStop, &LostStopStrip::clockChosen, this, [this](int seconds) {
    const LiveGame::Phase before = m_game.phase();
    m_game.settleStop(seconds);
    afterClock(before);
  });
  connect(m_score, &ScorePanel::colourAsked, this, &frmLIVE::chooseColour);
  connect(m_bench, &BenchPanel::toggled, this, [this](int team, int player) {
    m_game.toggleOnCourt(team, player);
    showGame();
  });
  connect(m_bench, &BenchPanel::allOutAsked, this, [this](int team) {
    m_game.takeAllOut(team);
    showGame();
  });
  connect(m_bench, &BenchPanel::onCourtAsked, this, &frmLIVE::setOnCourt);
  connect(m_bench, &BenchPanel::clockAsked, this, &frmLIVE::toggleClock);
  connect(m_bench, &BenchPanel::selected, this, &frmLIVE::showSelected);
  connect(m_bench, &BenchPanel::actionAsked, this, &frmLIVE::record);
  connect(m_followUp, &FollowUpBar::assistChosen, this, [this](int slot) { followUp(slot, EventCode::SA); });
  connect(m_followUp, &FollowUpBar::reboundChosen, this, [this](int slot, bool isOffensive) {
    followUp(slot, isOffensive ? EventCode::SOR : EventCode::SDR);
  });
  auto* requests = new EventRequests(m_game, *m_events, m_settings, m_texts, m_dialogs, *this);
  connect(requests, &EventRequests::gameChanged, this, &frmLIVE::showGame);
  connect(requests, &EventRequests::clockAsked, this, &frmLIVE::toggleClock);
  connect(m_keys, &LiveKeys::clockPressed, this, &frmLIVE::toggleClock);
  connect(m_keys, &LiveKeys::recorded, this, [this](const KeypadOrder& order) {
    showGame();
    if (order.kind == KeypadOrder::Kind::Shot)
      afterShot(order.team, order.player, order.code, order.isMade);
  });

  // Ahead of any focused button, which Ctrl+Space presses.
  const auto onKey = [this](const QKeySequence& key, auto handler) {
    auto* shortcut = new QShortcut(key, this);
    shortcut->setContext(Qt::WidgetWithChildrenShortcut);
    shortcut->setAutoRepeat(false);
    connect(shortcut, &QShortcut::activated, this, handler);
  };
  onKey(Qt::Key_Space, &frmLIVE::toggleClock);
  onKey(Qt::Key_Escape, [this] { m_bench->clearSelection(); });
}

void frmLIVE::resizeEvent(QResizeEvent*) {
  m_side->setFixedWidth(std::clamp(static_cast<int>(width() * kSideShare), kLeastSide, kMostSide));
  placeNotices();
}

// What comes while one records must not move what is being pressed: it lies over the oldest of the events.
QWidget* frmLIVE::makeNotices() {
  auto* notices = new QWidget(this);
  auto* layout = new QVBoxLayout(notices);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(kGap);
  layout->addWidget(m_banner);
  layout->addWidget(m_foreign);
  connect(m_foreign, &NoticeStrip::dismissed, this, &frmLIVE::placeNotices);
  return notices;
}

void frmLIVE::placeNotices() {
  m_notices->setVisible(!m_banner->isHidden() || !m_foreign->isHidden());
  const int wide = m_side->width();
  const int high = m_notices->layout()->heightForWidth(wide);
  m_notices->setGeometry(width() - wide - kGap, height() - high - kGap, wide, high);
  m_notices->raise();
}

frmLIVE::Opening frmLIVE::open(const QString& path, GameLock lock) {
  GameDetails details; // a file that cannot be read is told about below
  if (GameFile(m_store, fromQt(path)).readDetails(details) == GameFileProblem::None &&
      details.impossibleMinutes.value_or(0) > kMostMinutes) {
    m_dialogs.warn(this, toQt(m_texts.text(kErrorTitle)),
                   toQt(m_texts.withPlaceholder(kPeriodTooLong, std::to_string(*details.impossibleMinutes))));
    return Opening::Refused;
  }
  if (!mayClose()) // what is open now
    return Opening::Refused;
  const qint64 fileTime = QFileInfo(path).lastModified().toSecsSinceEpoch();
  const GameHold::Access access = m_hold->request(path, std::move(lock));
  m_problem =
      m_game.open(fromQt(QFileInfo(path).absoluteFilePath()),
                  access == GameHold::Access::Ours ? LiveGame::Access::Recording : LiveGame::Access::Reading);
  if (m_problem != GameFileProblem::None) {
    m_hold->drop();
    return Opening::Problem;
  }
  m_hold->keep();
  m_isHeldElsewhere = access == GameHold::Access::HeldElsewhere;
  if (access == GameHold::Access::Ours) {
    m_game.disk().setOwnership([this] { return m_hold->isStillOurs(); });
    if (m_hold->lock().names() > 1)
      m_dialogs.inform(this, toQt(m_texts.text(kWarningTitle)),
                       toQt(m_texts.withPlaceholder(kOtherNames, m_hold->lock().game())));
  }
  m_foreign->hide();
  m_isSwitched = false;
  m_followUp->dismiss();
  m_bench->clearSelection();
  m_lostStop->offer(LostStop::of(m_game.clockSeconds(), fileTime, QDateTime::currentSecsSinceEpoch()));
  m_keys->forget();
  relabelWindow();
  emit commandStateChanged();
  if (const auto& count = m_game.log().outOfRange()) { // the game goes on all the same
    const std::string words = m_texts.withPlaceholder(kCountOutOfRange, fromQt(QFileInfo(path).fileName()));
    m_dialogs.warn(this, toQt(m_texts.text(kWarningTitle)),
                   toQt(Module1::withPlaceholder(
                       words, m_game.game().details.abbreviation[count->team] + " " + count->what, "YYY")));
  }
  return Opening::Opened;
}

bool frmLIVE::writeCopy(const QString& path) {
  return m_game.writeCopy(fromQt(path));
}

QString frmLIVE::path() const {
  return toQt(m_game.game().path);
}

void frmLIVE::showGame() {
  takeForeignHands();
  for (PlayerPanel* panel : m_panels)
    panel->showGame(m_game);
  m_score->showGame(m_game);
  m_bench->showGame(m_game);
  showSelected();
  m_events->showGame(m_game);
  showDisk();
  m_lostStop->setVisible(m_game.isStopLost());
  const auto& details = m_game.game().details;
  setWindowTitle(asTitle(QStringLiteral("%1 - %2 %3 - %4 %5")
                             .arg(toQt(m_texts.text(kWindowTitle)), toQt(details.abbreviation[0]),
                                  QString::number(m_game.state().points(0)),
                                  QString::number(m_game.state().points(1)), toQt(details.abbreviation[1]))));
}

void frmLIVE::showSelected() {
  for (int slot = 0; slot < LiveGame::kSlots; ++slot)
    m_panels[static_cast<std::size_t>(slot)]->setSelected(
        m_bench->isSelected(LiveGame::teamOf(slot), m_game.playerIn(slot)));
}

void frmLIVE::showTime() {
  for (PlayerPanel* panel : m_panels)
    panel->showTime(m_game);
  m_score->showTime(m_game);
  m_bench->showTime(m_game);
}

void frmLIVE::showDisk() {
  const GameOnDisk& disk = m_game.disk();
  const std::string waiting = std::to_string(disk.waiting());
  m_score->showDisk(disk.isOnDisk(), disk.waiting());
  showReadOnly();
  m_banner->setVisible(!disk.isOnDisk());
  if (disk.isOnDisk()) {
    m_retryOfWrites.stop();
    return placeNotices();
  }
  std::string words = m_texts.withPlaceholder(kNotOnDisk, waiting);
  if (disk.isLost())
    words = m_texts.withPlaceholder(kTakenOver, fromQt(m_hold->ownerWords()));
  else if (!disk.rescuedAs().empty())
    words = m_texts.withPlaceholder(kNotOnDiskButRescued, waiting);
  words = Module1::withPlaceholder(words, disk.rescuedAs(), "YYY");
  m_banner->setText(toQt(words));
  placeNotices();
  if (!m_retryOfWrites.isActive())
    m_retryOfWrites.start();
}

void frmLIVE::showReadOnly() {
  m_readOnly->setVisible(m_game.phase() == LiveGame::Phase::ReadOnly);
  const int text = m_isHeldElsewhere ? kHeldElsewhere : kForReadingOnly;
  const QString whom = m_isHeldElsewhere ? m_hold->ownerWords() : path();
  const QString shown = m_readOnly->fontMetrics().elidedText(whom, Qt::ElideMiddle, kPathWidth);
  m_readOnly->setText(toQt(m_texts.withPlaceholder(text, fromQt(shown))));
  m_readOnly->setToolTip(toQt(m_texts.withPlaceholder(text, fromQt(whom))));
}

// Between two actions, when nothing refers to events that may move.
void frmLIVE::takeForeignHands() {
  const std::string words = foreignWords(m_game.takeForeignHands(), m_texts);
  if (!words.empty())
    m_foreign->tell(toQt(words));
  placeNotices();
}

// Also after this window's own writes: then it is as it was left, and nothing is shown anew.
void frmLIVE::lookAtFile() {
  if (m_game.phase() == LiveGame::Phase::ReadOnly) {
    if (m_isHeldElsewhere &&
        m_game.open(m_game.game().path, LiveGame::Access::Reading) == GameFileProblem::None)
      showGame();
    return;
  }
  m_game.settle();
  if (m_game.disk().hasForeignHands())
    showGame();
  else
    showDisk();
}

// --- Clock

void frmLIVE::toggleClock() {
  const LiveGame::Phase before = m_game.phase();
  if (before == LiveGame::Phase::OvertimeAsked)
    return askOvertime();
  m_game.toggleClock();
  afterClock(before);
}

void frmLIVE::tick() {
  const LiveGame::Phase before = m_game.phase();
  m_game.tick();
  if (m_game.phase() == before)
    showTime();
  else
    afterClock(before);
}

void frmLIVE::afterClock(LiveGame::Phase before) {
  if (isRunning())
    m_timer.start();
  else
    m_timer.stop();
  showGame();
  emit commandStateChanged();
  if (before != LiveGame::Phase::OvertimeAsked && m_game.phase() == LiveGame::Phase::OvertimeAsked)
    askOvertime();
}

void frmLIVE::askOvertime() {
  frmOVERTIME window(m_game.game().details, m_texts, this);
  if (window.exec() != QDialog::Accepted)
    return;
  m_game.beginOvertime(window.minutes(), window.keepsFouls());
  showGame();
}

void frmLIVE::gameOver() {
  if (m_game.phase() == LiveGame::Phase::ReadOnly)
    return m_dialogs.inform(this, toQt(m_texts.text(kWarningTitle)), m_readOnly->toolTip());
  const LiveGame::Phase before = m_game.phase();
  m_game.stop();
  if (before == LiveGame::Phase::Running)
    afterClock(before);
  frmGAMEOVER window(m_game.game().details, m_texts, m_dialogs, this);
  window.exec();
  switch (window.choice()) {
  case frmGAMEOVER::Choice::None: break;
  case frmGAMEOVER::Choice::Close: m_game.finish(window.notes()); break;
  case frmGAMEOVER::Choice::Continue: m_game.saveNotes(window.notes()); break;
  case frmGAMEOVER::Choice::Reopen: m_game.reopen(); break;
  }
  showGame();
}

// --- What is recorded

void frmLIVE::pressCourt(int slot, const QPointF& place, bool isMade) {
  const auto click = CourtClick::of({place.x(), place.y()}, playsRight(slot), zoneMapOf(m_settings));
  if (click)
    shoot(slot, click->kind, isMade, std::pair(click->place.x, click->place.y));
}

void frmLIVE::shoot(int slot, EventCode kind, bool isMade, std::optional<std::pair<double, double>> place) {
  const int team = LiveGame::teamOf(slot);
  if (!m_game.recordShot(team, m_game.playerIn(slot), kind, isMade, place))
    return;
  if (m_bench->isSelected(team, m_game.playerIn(slot)))
    m_bench->clearSelection();
  showGame();
  afterShot(team, m_game.playerIn(slot), kind, isMade);
}

// Over the shooter's panel, or the first of his team for one who is not on court.
void frmLIVE::afterShot(int team, int player, EventCode kind, bool isMade) {
  const auto followUps = m_game.followUps(team, player, kind, isMade, m_settings.asksRebounds);
  const int slot = m_game.slotOf(team, player).value_or(team * LiveGame::kSlotsOfTeam);
  PlayerPanel* panel = m_panels[static_cast<std::size_t>(slot)];
  m_followUp->ask(m_game, followUps, team, QRect(panel->mapToGlobal(QPoint(0, 0)), panel->size()));
}

void frmLIVE::followUp(int slot, EventCode kind) {
  m_game.recordFollowUp(LiveGame::teamOf(slot), m_game.playerIn(slot), kind);
  showGame();
}

void frmLIVE::act(int slot, EventCode kind) {
  record(LiveGame::teamOf(slot), m_game.playerIn(slot), kind);
}

// A player is selected for one action: a finger that slips onto the button twice gives no second foul.
void frmLIVE::record(int team, int player, EventCode kind) {
  m_game.recordAction(team, player, kind);
  if (m_bench->isSelected(team, player))
    m_bench->clearSelection();
  showGame();
}

void frmLIVE::setOnCourt(const OnCourt& onCourt) {
  m_game.setOnCourt(onCourt);
  showGame();
}

void frmLIVE::edit(bool (LiveGame::*step)()) {
  (m_game.*step)();
  showGame();
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
  for (int slot = 0; slot < LiveGame::kSlots; ++slot)
    m_panels[static_cast<std::size_t>(slot)]->setPlaysRight(playsRight(slot));
  m_score->setSides(m_isSwitched);
}

void frmLIVE::chooseColour(int team) {
  if (m_game.phase() == LiveGame::Phase::ReadOnly)
    return;
  const std::uint32_t colour = m_game.game().details.teamColour[team];
  const QColor chosen = m_dialogs.chooseColour(this, toQt(m_texts.text(kColourTitle)), colourOf(colour));
  if (!chosen.isValid())
    return;
  m_game.setTeamColour(team, storedColour(chosen));
  applyColours();
  showGame();
}

// --- The window

void frmLIVE::relabelWindow() {
  relabel(*this, m_texts);
  for (int slot = 0; slot < LiveGame::kSlots; ++slot) {
    PlayerPanel* panel = m_panels[static_cast<std::size_t>(slot)];
    panel->relabelPanel();
    panel->setPlaysRight(playsRight(slot));
  }
  m_lostStop->relabelPanel();
  m_score->relabelPanel();
  m_score->setSides(m_isSwitched);
  m_bench->relabelPanel();
  m_events->relabelPanel();
  m_keys->relabelKeys();
  applyColours();
  showGame();
}

void frmLIVE::applyColours() {
  QPalette palette = m_banner->palette();
  palette.setColor(QPalette::Window, Theme::missed());
  palette.setColor(QPalette::WindowText, textOn(Theme::missed()));
  m_banner->setPalette(palette);
  m_foreign->applyColours();
  m_lostStop->applyColours();
  for (PlayerPanel* panel : m_panels)
    panel->applyColours();
  m_score->applyColours();
  m_bench->applyColours();
  m_events->applyColours();
}

void frmLIVE::dragEnterEvent(QDragEnterEvent* event) {
  if (event->mimeData()->hasFormat(QLatin1String(kPlayerMimeType)))
    event->acceptProposedAction();
}

void frmLIVE::dropEvent(QDropEvent* event) {
  const std::string dropped = event->mimeData()->data(QLatin1String(kPlayerMimeType)).toStdString();
  const int team = Module1::leadingNumber(Module1::field(dropped, 1, '-'));
  const int player = Module1::leadingNumber(Module1::field(dropped, 2, '-'));
  for (int slot = 0; slot < LiveGame::kSlots; ++slot) {
    const PlayerPanel* panel = m_panels[static_cast<std::size_t>(slot)];
    const QPoint place = panel->mapFrom(this, event->position().toPoint());
    if (LiveGame::teamOf(slot) != team || !panel->rect().contains(place) || player < 1 ||
        player > Roster::kLargestEntry)
      continue;
    OnCourt wanted = m_game.onCourt();
    unsigned& entries = wanted[static_cast<std::size_t>(team)];
    if (const int leaving = m_game.playerIn(slot); leaving > 0)
      entries &= ~(1U << static_cast<unsigned>(leaving));
    entries |= 1U << static_cast<unsigned>(player);
    event->acceptProposedAction();
    m_bench->clearSelection(); // which the press that began the drag has made
    return setOnCourt(wanted);
  }
}

bool frmLIVE::mayClose() {
  if (isRunning())
    toggleClock();
  if (m_game.settle())
    return true;
  showDisk();
  const std::string& rescued = m_game.disk().rescuedAs();
  const std::string question = m_texts.withPlaceholder(rescued.empty() ? kLeaveUnwritten : kLeaveRescued,
                                                       std::to_string(m_game.log().waiting()));
  return m_dialogs.ask(this, toQt(m_texts.text(kErrorTitle)),
                       toQt(Module1::withPlaceholder(question, rescued, "YYY")));
}

} // namespace hooptab
