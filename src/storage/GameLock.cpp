#include "storage/GameLock.h"

#include <unistd.h>

namespace hooptab {

namespace {

std::string lockOf(const std::string& game) {
  return game + ".lock";
}

// Where a file that is not there yet will stand: its folder's links are resolved, too.
std::string whereItStands(FileSystem& files, const std::string& path) {
  std::string target;
  if (!files.resolve(path, target) || target != path)
    return target;
  const std::size_t slash = path.rfind('/');
  std::string folder;
  if (slash != std::string::npos && slash > 0 && files.resolve(path.substr(0, slash), folder))
    return folder + path.substr(slash);
  return target;
}

} // namespace

GameLock::Outcome GameLock::acquire(FileSystem& files, const std::string& path) {
  m_refused.clear();
  const std::string game = whereItStands(files, path);
  if (game.empty())
    return Outcome::CannotBeMade;
  if (isHeld() && m_game == game && isStillOurs())
    return Outcome::Held;
  FileStamp stamp;
  const bool isThere = files.stamp(game, stamp);
  // Without any of these bits the store refuses whoever asks, also the one user to whom all is allowed.
  constexpr std::uint32_t kAnyWriteBit = 0222;
  if (isThere && ((stamp.mode & kAnyWriteBit) == 0 || ::access(game.c_str(), W_OK) != 0))
    return Outcome::CannotBeMade;
  auto file = std::make_unique<LockFile>(lockOf(game));
  const Outcome outcome = file->acquire();
  if (outcome == Outcome::HeldElsewhere)
    m_refused = game;
  if (outcome != Outcome::Held)
    return outcome;
  m_file = std::move(file);
  m_game = game;
  m_names = isThere ? stamp.names : 1;
  return outcome;
}

GameLock::Outcome GameLock::takeOver(const LockFile::Sight& watched) {
  auto file = std::make_unique<LockFile>(lockOf(m_refused));
  const Outcome outcome = file->takeOver(watched);
  if (outcome == Outcome::Held) {
    m_file = std::move(file);
    m_game = m_refused;
  }
  return outcome;
}

LockFile::Sight GameLock::lookAtOther() const {
  return LockFile(lockOf(m_refused.empty() ? m_game : m_refused)).look();
}

} // namespace hooptab
