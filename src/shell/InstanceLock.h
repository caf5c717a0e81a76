// One running program per program folder, by a lock file in that folder. A lock whose process is gone is
// taken over. Where no lock can be made, as in a folder without rights, the program runs without: it cannot
// harm what it cannot write.
#pragma once

#include <QLockFile>

namespace hooptab {

class InstanceLock {
 public:
  explicit InstanceLock(const QString& programFolder);
  // False only when another running program holds the lock.
  [[nodiscard]] bool acquire();

 private:
  QLockFile m_file;
};

} // namespace hooptab
