// One writer per game: a lock file beside the game, held as long as it is open for input. One whose owner is
// gone on this machine is taken over; where none can be made the game can only be read.
#pragma once

#include <QLockFile>
#include <QString>

#include <memory>

namespace hooptab {

class GameLock {
 public:
  enum class Outcome { Held, HeldElsewhere, CannotBeMade };
  // CannotBeMade also for a file that nobody may write. Gives up the game that was locked before, but only
  // when the new one is Held.
  [[nodiscard]] Outcome acquire(const QString& game);
  // Who records the game elsewhere: "program, process 123 on HOST"; after HeldElsewhere.
  const QString& owner() const { return m_owner; }

 private:
  std::unique_ptr<QLockFile> m_file;
  QString m_owner;
};

} // namespace hooptab
