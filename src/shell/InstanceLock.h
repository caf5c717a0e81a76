// One running program per program folder, by a lock file in that folder. A lock whose process is gone is
// taken over, and so is one that nobody can read. Where no lock can be made, as in a folder without rights,
// the program runs without: it cannot harm what it cannot write.
#pragma once

#include "settings/Texts.h"
#include "storage/LockFile.h"

#include <QString>

#include <chrono>

namespace hooptab {

class Dialogs;

class InstanceLock {
 public:
  explicit InstanceLock(const QString& programFolder);

  enum class Outcome {
    MayRun,
    IsRunning,      // another program, here
    IsHeldElsewhere // by another computer, of which nobody knows whether it lives
  };
  [[nodiscard]] Outcome acquire();
  // The same, with the user: says that the program is running, or watches the other computer's sign of life
  // and asks whether to go on without it.
  [[nodiscard]] bool admits(const Texts& texts, Dialogs& dialogs,
                            std::chrono::milliseconds patience = LockFile::kWatch);

 private:
  [[nodiscard]] bool watchOther(const Texts& texts, Dialogs& dialogs, std::chrono::milliseconds patience);

  LockFile m_file;
};

} // namespace hooptab
