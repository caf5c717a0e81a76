#include "shell/InstanceLock.h"

namespace hooptab {

InstanceLock::InstanceLock(const QString& programFolder)
    : m_file(programFolder + QStringLiteral("/hooptab.lock")) {
  // A lock never grows too old: a game can be followed for hours. It is stale only when its process is gone.
  m_file.setStaleLockTime(0);
}

bool InstanceLock::acquire() {
  return m_file.tryLock(0) || m_file.error() != QLockFile::LockFailedError;
}

} // namespace hooptab
