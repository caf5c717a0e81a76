// A game of totals that is open: its details, players and totals, and whether they are on disk. What the disk
// does not take stays in memory and is written as soon as it does.
#pragma once

#include "manual/ManualTotals.h"
#include "storage/GameFile.h"
#include "storage/WriteQueue.h"

#include <string>

namespace hooptab {

class ManualGame {
 public:
  explicit ManualGame(cinifile& store) : m_store(store) {}
  ManualGame(const ManualGame&) = delete; // what waits to be written refers to this object
  ManualGame& operator=(const ManualGame&) = delete;

  enum class Access { Entering, Reading }; // reading: whoever changes the totals cannot save them
  // On a problem nothing is changed.
  [[nodiscard]] GameFileProblem open(const std::string& path, Access access = Access::Entering);
  bool isForReading() const { return m_access == Access::Reading; }
  const std::string& path() const { return m_path; }
  const GameDetails& details() const { return m_details; }
  const Roster& roster(int team) const { return m_rosters[team]; }

  ManualTotals totals; // the window's to change

  // Everything was handed over to be saved; it may still wait for the disk.
  bool isSaved() const { return totals == m_saved; }
  bool isOnDisk() const { return m_writes.isEmpty(); }
  // Both return whether everything that was saved is on disk.
  bool save();
  bool retry() { return m_writes.retry(); }

 private:
  cinifile& m_store;
  std::string m_path;
  Access m_access = Access::Entering;
  GameDetails m_details;
  Roster m_rosters[2];
  ManualTotals m_saved;
  WriteQueue m_writes;
};

} // namespace hooptab
