// One writer per game, by what its file is: a lock file beside the file to which every name of it leads, held
// as long as the game is open for input. Knows the rules of games; what a lock is, LockFile says.
#pragma once

#include "storage/FileSystem.h"
#include "storage/LockFile.h"

#include <memory>
#include <string>

namespace hooptab {

class GameLock {
 public:
  using Outcome = LockFile::Outcome;

  // Of a game that stands there, or of one that is to be made. CannotBeMade also for a file that nobody may
  // write. Gives up the game that was locked before, but only when the new one is Held.
  [[nodiscard]] Outcome acquire(FileSystem& files, const std::string& game);
  // Of a game whose lock was seen so and stood still; gives up the one before, too.
  [[nodiscard]] Outcome takeOver(const LockFile::Sight& watched);

  bool isHeld() const { return m_file != nullptr; }
  // The file that is locked, links resolved; empty without one.
  const std::string& game() const { return m_game; }
  [[nodiscard]] bool isStillOurs() { return m_file != nullptr && m_file->isStillOurs(); }

  // The lock that stands in the way, after HeldElsewhere or when it is ours no more, as it looks now.
  [[nodiscard]] LockFile::Sight lookAtOther() const;
  // How many names (hard links) the file had; all but game()'s are parted from it by the first save.
  std::uint64_t names() const { return m_names; }

 private:
  std::unique_ptr<LockFile> m_file;
  std::string m_game;
  std::uint64_t m_names = 1;
  std::string m_refused; // the game that is held elsewhere
};

} // namespace hooptab
