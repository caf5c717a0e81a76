#include "shell/InstanceLock.h"

#include "appearance/Dialogs.h"
#include "appearance/PlainLabel.h"
#include "appearance/relabel.h"
#include "storage/LockWatch.h"
#include "storage/Placeholders.h"

#include <QDateTime>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QProgressDialog>
#include <QTimer>
#include <thread>

namespace hooptab {

namespace {

using namespace std::chrono_literals;

constexpr int kLooks = 25; // while it is watched

} // namespace

InstanceLock::InstanceLock(const QString& programFolder) : m_file(fromQt(programFolder) + "/hooptab.lock") {}

InstanceLock::Outcome InstanceLock::acquire() {
  if (m_file.acquire() != LockFile::Outcome::HeldElsewhere)
    return Outcome::MayRun;
  const LockFile::Sight seen = m_file.look();
  const LockFile::Owner owner = LockFile::ownerOf(seen);
  if (owner.isKnown)
    return owner.isOfThisComputer ? Outcome::IsRunning : Outcome::IsHeldElsewhere;
  std::this_thread::sleep_for(200ms); // somebody may just be writing it
  return m_file.takeOver(seen) == LockFile::Outcome::HeldElsewhere ? acquire() : Outcome::MayRun;
}

bool InstanceLock::admits(const Texts& texts, Dialogs& dialogs, std::chrono::milliseconds patience) {
  switch (acquire()) {
  case Outcome::MayRun: return true;
  case Outcome::IsHeldElsewhere: return watchOther(texts, dialogs, patience);
  case Outcome::IsRunning: break;
  }
  dialogs.inform(nullptr, QStringLiteral("HOOPTAB"), caption(texts, Text::IsOpen));
  return false;
}

bool InstanceLock::watchOther(const Texts& texts, Dialogs& dialogs, std::chrono::milliseconds patience) {
  const LockFile::Owner owner = LockFile::ownerOf(m_file.look());
  QProgressDialog progress;
  progress.setWindowTitle(QStringLiteral("HOOPTAB"));
  progress.setLabel(new PlainLabel(toQt(texts.withPlaceholder(Text::FolderInUse, owner.computer))));
  progress.setRange(0, kLooks);
  progress.setMinimumDuration(0);
  LockWatch watch(patience);
  QElapsedTimer time;
  time.start();
  for (int look = 0;; ++look) {
    switch (watch.look(m_file.look(), std::chrono::milliseconds(time.elapsed()))) {
    case LockWatch::State::Free: return m_file.acquire() != LockFile::Outcome::HeldElsewhere;
    case LockWatch::State::Renewed:
      progress.close();
      dialogs.inform(nullptr, QStringLiteral("HOOPTAB"), caption(texts, Text::IsOpen));
      return false;
    case LockWatch::State::StandsStill: {
      progress.close();
      const QString since =
          QDateTime::fromSecsSinceEpoch(owner.renewedSeconds).toString(QStringLiteral("yyyy-MM-dd hh:mm"));
      const std::string question =
          withPlaceholders(texts.text(Text::FolderNoSignOfLife), owner.computer, fromQt(since));
      return dialogs.ask(nullptr, QStringLiteral("HOOPTAB"), toQt(question)) &&
             m_file.takeOver(watch.sight()) != LockFile::Outcome::HeldElsewhere;
    }
    case LockWatch::State::Watching: break;
    }
    progress.setValue(std::min(look, kLooks - 1));
    if (progress.wasCanceled())
      return false;
    QEventLoop pause;
    QTimer::singleShot(patience / kLooks, &pause, &QEventLoop::quit);
    pause.exec();
  }
}

} // namespace hooptab
