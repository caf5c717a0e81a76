#include "appearance/GameLock.h"

#include <QFileInfo>

namespace hooptab {

GameLock::Outcome GameLock::acquire(const QString& game) {
  const QString path = QFileInfo(game).absoluteFilePath() + QStringLiteral(".lock");
  if (m_file && m_file->fileName() == path)
    return Outcome::Held;
  // Without any of these bits the store refuses whoever asks, also the one user to whom all is allowed.
  constexpr QFile::Permissions kMayWrite = QFile::WriteOwner | QFile::WriteGroup | QFile::WriteOther;
  if (!(QFileInfo(game).permissions() & kMayWrite) || !QFileInfo(game).isWritable())
    return Outcome::CannotBeMade;
  auto file = std::make_unique<QLockFile>(path);
  file->setStaleLockTime(0); // a game may stand for hours: a lock is stale only when its process is gone
  if (file->tryLock(0)) {
    m_file = std::move(file);
    return Outcome::Held;
  }
  if (file->error() != QLockFile::LockFailedError)
    return Outcome::CannotBeMade;
  qint64 process = 0;
  QString host;
  QString program;
  file->getLockInfo(&process, &host, &program);
  m_owner = QStringLiteral("%1 (%2, %3)").arg(host, program, QString::number(process));
  return Outcome::HeldElsewhere;
}

} // namespace hooptab
