#include "totals/ManualGame.h"

namespace hooptab {

GameFileProblem ManualGame::open(const std::string& path, Access access) {
  GameFile file(m_store, path);
  Game game;
  if (const GameFileProblem problem = file.read(game); problem != GameFileProblem::None)
    return problem;
  m_path = path;
  m_access = access;
  m_details = std::move(game.details);
  for (const Side team : kSides)
    m_rosters[team] = std::move(game.roster[team]);
  totals.load(m_rosters[Side::Visitor], m_rosters[Side::Home], game.events);
  m_saved = totals;
  m_guard.begin(path, file.text());
  m_isLost = false;
  m_isWatching = true;
  m_hasSaved = false;
  m_pending.clear();
  m_foreign = {};
  return GameFileProblem::None;
}

bool ManualGame::save() {
  if (isForReading())
    return false;
  m_saved = totals;
  m_hasSaved = true;
  if (m_pending.isEmpty())
    m_pending.add();
  return settle();
}

bool ManualGame::settle() {
  if (isForReading() || !m_isWatching)
    return isOnDisk();
  m_isLost = m_isLost || (m_isOurs && !m_isOurs());
  const FileGuard::Found found = m_isLost ? FileGuard::Found::OutOfReach : m_guard.look();
  const std::int64_t now = m_store.files().nowNanoseconds();
  if (found == FileGuard::Found::OutOfReach) // of a file that is lost the disk has said nothing
    m_pending.refuse(m_isLost ? StorageError() : m_guard.obstacle(), now);
  const bool isGone = found == FileGuard::Found::Gone || found == FileGuard::Found::Unusable;
  const bool isMissing = isGone || (m_hasSaved && isTouched(found)); // of what this window left there
  if (found == FileGuard::Found::OutOfReach || (isOnDisk() && !isMissing))
    return isOnDisk();

  ProfileBatch batch;
  if (m_hasSaved)
    GameFile::planLines(ManualTotals::kPeriod, m_saved.lines(), batch);
  WriteResult written;
  if (isGone) {
    written = m_guard.rewrite(batch);
    m_foreign.isRewritten = m_foreign.isRewritten || written.isOnDisk();
  } else {
    const bool gaveWay = isTouched(found);
    if (gaveWay)
      written = m_guard.keepFound();
    if (written.isOnDisk())
      written = m_guard.write(batch);
    m_foreign.gaveWay = m_foreign.gaveWay || (gaveWay && written.isOnDisk());
  }
  if (std::string kept = m_guard.takeKeptAs(); !kept.empty())
    m_foreign.keptAs = std::move(kept);
  if (written.isOnDisk())
    m_pending.clear();
  else
    m_pending.refuse(written.error(), now);
  return isOnDisk();
}

// Whether the events in the file are others than those that were left there.
bool ManualGame::isTouched(FileGuard::Found found) {
  return found == FileGuard::Found::Changed &&
         storedEventLines(m_guard.found()) != storedEventLines(m_guard.left());
}

bool ManualGame::writeCopy(const std::string& path) {
  ProfileBatch batch;
  GameFile::planLines(ManualTotals::kPeriod, totals.lines(), batch);
  return m_guard.writeCopy(path, batch).isOnDisk();
}

} // namespace hooptab
