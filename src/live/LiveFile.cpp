#include "live/LiveFile.h"

#include "appearance/Dialogs.h"
#include "appearance/PlainLabel.h"
#include "appearance/relabel.h"
#include "live/LiveNotices.h"
#include "live/NowStrip.h"
#include "recording/ForeignWords.h"
#include "storage/Placeholders.h"

#include <QFileInfo>
#include <utility>

namespace hooptab {

namespace {

constexpr int kPathWidth = 380; // so that what can be done about it stands beside it on a small screen

QLabel& makeStrip(QWidget& window) {
  auto* strip = new PlainLabel(&window);
  strip->setObjectName(QStringLiteral("lblREADONLY"));
  strip->setAutoFillBackground(true);
  strip->setAlignment(Qt::AlignCenter);
  strip->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed); // no wider than the window, whoever's path
  strip->hide();
  return *strip;
}

} // namespace

LiveFile::LiveFile(GameSession& session, FileSystem& files, const Texts& texts, Dialogs& dialogs,
                   NowStrip& now, LiveNotices& notices, QWidget& window)
    : QObject(&window), m_session(session), m_game(session.game()), m_texts(texts), m_dialogs(dialogs),
      m_now(now), m_notices(notices), m_window(window), m_strip(makeStrip(window)),
      m_hold(*new GameHold(files, texts, dialogs, window)),
      m_retry(session.game().disk().pending(), files, this) {
  connect(&m_retry, &WriteRetry::due, this, &LiveFile::look);
  connect(&m_retry, &WriteRetry::waits, this, &LiveFile::showWaiting);
  connect(&m_retry, &WriteRetry::allIsOnDisk, this, [this] { m_notices.showNotOnDisk({}, {}); });
  connect(&m_hold, &GameHold::fileChanged, this, &LiveFile::look);
  connect(&m_hold, &GameHold::taken, this, &LiveFile::taken);
}

GameFileProblem LiveFile::open(const QString& path, GameLock lock) {
  const GameHold::Access access = m_hold.request(path, std::move(lock));
  const GameFileProblem problem = m_session.change()->open(
      fromQt(QFileInfo(path).absoluteFilePath()),
      access == GameHold::Access::Ours ? LiveGame::Access::Recording : LiveGame::Access::Reading);
  if (problem != GameFileProblem::None) {
    m_hold.drop();
    return problem;
  }
  m_hold.keep();
  m_isHeldElsewhere = access == GameHold::Access::HeldElsewhere;
  if (access == GameHold::Access::Ours) {
    m_session.change()->disk().setOwnership([this] { return m_hold.isStillOurs(); });
    if (m_hold.lock().names() > 1)
      m_dialogs.inform(&m_window, toQt(m_texts.text(Text::WarningTitle)),
                       toQt(m_texts.withPlaceholder(Text::OtherNames, m_hold.lock().game())));
  }
  return GameFileProblem::None;
}

void LiveFile::tell(const ForeignHands& foreign) {
  const std::string words = foreignWords(foreign, m_texts);
  if (!words.empty())
    m_notices.tellForeign(toQt(words));
}

// Also after this window's own writes: then it is as it was left, and nothing is shown anew.
void LiveFile::look() {
  if (m_game.phase() != LiveGame::Phase::ReadOnly) {
    m_session.change()->settle();
    show();
  } else if (m_isHeldElsewhere) {
    (void)m_session.change()->open(m_game.game().path, LiveGame::Access::Reading);
  }
}

void LiveFile::show() {
  m_now.showDisk(m_game.disk().pending());
  showStrip();
  m_retry.refresh();
}

void LiveFile::showWaiting() {
  const GameOnDisk& disk = m_game.disk();
  const std::string waiting = std::to_string(disk.waiting());
  const Text text = disk.isLost()              ? Text::TakenOver
                    : disk.rescuedAs().empty() ? Text::ChangesNotOnDisk
                                               : Text::NotOnDiskButRescued;
  const std::string words = withPlaceholders(
      m_texts.text(text), disk.isLost() ? fromQt(m_hold.ownerWords()) : waiting, disk.rescuedAs());
  m_notices.showNotOnDisk(toQt(words), m_retry.reason(m_texts));
}

void LiveFile::showStrip() {
  m_strip.setVisible(m_game.phase() == LiveGame::Phase::ReadOnly);
  const Text text = m_isHeldElsewhere ? Text::HeldElsewhere : Text::ForReadingOnly;
  const QString whom = m_isHeldElsewhere ? m_hold.ownerWords() : toQt(m_game.game().path);
  const QString shown = m_strip.fontMetrics().elidedText(whom, Qt::ElideMiddle, kPathWidth);
  m_strip.setText(toQt(m_texts.withPlaceholder(text, fromQt(shown))));
  m_strip.setToolTip(toQt(m_texts.withPlaceholder(text, fromQt(whom))));
}

bool LiveFile::mayLeave() {
  if (m_session.change()->settle())
    return true;
  show();
  const std::string& rescued = m_game.disk().rescuedAs();
  const std::string question =
      withPlaceholders(m_texts.text(rescued.empty() ? Text::LeaveUnwritten : Text::LeaveRescued),
                       std::to_string(m_game.log().waiting()), rescued);
  return m_dialogs.ask(&m_window, toQt(m_texts.text(Text::ErrorTitle)), toQt(question));
}

} // namespace hooptab
