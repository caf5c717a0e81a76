#include "appearance/GameHold.h"

#include "appearance/Dialogs.h"
#include "appearance/relabel.h"
#include "storage/Placeholders.h"

#include <QDateTime>
#include <QFileInfo>
#include <QWidget>

namespace hooptab {

namespace {

using namespace std::chrono_literals;

std::chrono::milliseconds now() {
  return std::chrono::duration_cast<std::chrono::milliseconds>(
      std::chrono::steady_clock::now().time_since_epoch());
}

} // namespace

GameHold::GameHold(FileSystem& files, const Texts& texts, Dialogs& dialogs, QWidget& window)
    : QObject(&window), m_files(files), m_texts(texts), m_dialogs(dialogs), m_window(window) {
  m_timer.setInterval(5s);
  connect(&m_timer, &QTimer::timeout, this, &GameHold::look);
  connect(&m_file, &FileWatch::changed, this, &GameHold::fileChanged);
}

void GameHold::setPatience(std::chrono::milliseconds patience, std::chrono::milliseconds interval) {
  m_patience = patience;
  m_timer.setInterval(interval);
}

GameHold::Access GameHold::request(const QString& path, GameLock handed) {
  Request request{std::move(handed), fromQt(QFileInfo(path).absoluteFilePath()), Access::ReadOnly, true};
  switch (request.lock.acquire(m_files, request.path)) {
  case GameLock::Outcome::Held: request.access = Access::Ours; break;
  case GameLock::Outcome::CannotBeMade: break;
  case GameLock::Outcome::HeldElsewhere: {
    request.access = Access::HeldElsewhere;
    std::string file;
    if (m_lock.isHeld() && m_files.resolve(request.path, file) && file == m_lock.game()) { // by this window
      request.access = Access::Ours;
      request.isNew = false;
    }
    break;
  }
  }
  m_request = std::move(request);
  return m_request->access;
}

void GameHold::keep() {
  if (!m_request)
    return;
  Request request = std::move(*m_request);
  m_request.reset();
  if (request.isNew)
    m_lock = std::move(request.lock);
  m_watch = LockWatch(m_patience);
  m_timer.stop();
  if (request.access == Access::HeldElsewhere) {
    look();
    m_timer.start();
  }
  m_file.watch(request.path);
}

void GameHold::drop() {
  m_request.reset();
}

QString GameHold::ownerWords() const {
  return ownerWords(m_request ? m_request->lock : m_lock, m_texts);
}

QString GameHold::ownerWords(const GameLock& lock, const Texts& texts) {
  const LockFile::Owner owner = LockFile::ownerOf(lock.lookAtOther());
  if (!owner.isKnown)
    return caption(texts, Text::AnotherProgram);
  return QStringLiteral("%1, %2 (%3)")
      .arg(toQt(owner.program), toQt(owner.computer), QString::number(owner.process));
}

void GameHold::look() {
  switch (m_watch.look(m_lock.lookAtOther(), now())) {
  case LockWatch::State::StandsStill: return offer(Text::NoSignOfLife);
  case LockWatch::State::Free: return offer(Text::IsFree);
  case LockWatch::State::Watching:
  case LockWatch::State::Renewed: break;
  }
}

void GameHold::offer(Text question) {
  m_timer.stop(); // while the question stands
  const LockFile::Sight seen = m_watch.sight();
  const std::int64_t since = LockFile::ownerOf(seen).renewedSeconds;
  const std::string words = withPlaceholders(
      m_texts.text(question), fromQt(ownerWords()),
      fromQt(QDateTime::fromSecsSinceEpoch(since).toString(QStringLiteral("yyyy-MM-dd hh:mm"))));
  const bool isAsked = m_dialogs.ask(&m_window, caption(m_texts, Text::WarningTitle), toQt(words));
  if (isAsked && m_lock.takeOver(seen) == GameLock::Outcome::Held)
    emit taken();
  else if (seen.isThere || isAsked) // one that has gone is offered once
    m_timer.start();
}

} // namespace hooptab
