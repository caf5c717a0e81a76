// A game of totals that is open: its details, players and totals, and whether they are on disk. What the disk
// does not take stays in memory and is written as soon as it does. What others wrote into the events of the
// file meanwhile gives way, and is kept.
#pragma once

#include "game/GameFile.h"
#include "game/Side.h"
#include "storage/FileGuard.h"
#include "storage/PendingWrites.h"
#include "totals/ManualTotals.h"

#include <functional>
#include <string>
#include <utility>

namespace hooptab {

class ManualGame {
 public:
  explicit ManualGame(ProfileStore& store) : m_store(store), m_guard(store, isGame) {}
  ManualGame(const ManualGame&) = delete; // what waits to be written refers to this object
  ManualGame& operator=(const ManualGame&) = delete;

  enum class Access { Entering, Reading }; // reading: whoever changes the totals cannot save them
  // On a problem nothing is changed.
  [[nodiscard]] GameFileProblem open(const std::string& path, Access access = Access::Entering);
  bool isForReading() const { return m_access == Access::Reading; }
  const std::string& path() const { return m_path; }
  const GameDetails& details() const { return m_details; }
  const Roster& roster(Side team) const { return m_rosters[team]; }

  ManualTotals totals; // the window's to change

  // Everything was handed over to be saved; it may still wait for the disk.
  bool isSaved() const { return totals == m_saved; }
  bool isOnDisk() const { return m_pending.isEmpty(); }
  const PendingWrites& pending() const { return m_pending; }
  // Both return whether everything that was saved is on disk. The second also brings back what was saved when
  // the file has lost it.
  bool save();
  bool settle();
  // The totals as they are now, saved or not, in another file.
  bool writeCopy(const std::string& path);
  // Asked before each write: false when somebody else writes this file now, and nothing more goes there.
  void setOwnership(std::function<bool()> isOurs) { m_isOurs = std::move(isOurs); }
  bool isLost() const { return m_isLost; }
  // Off: nothing is looked at or written, until the next open().
  void setWatching(bool isOn) { m_isWatching = isOn; }
  // What others did to the file since it was last asked for.
  struct ForeignHands {
    bool isRewritten = false; // the whole file was written again
    bool gaveWay = false;     // events that others had written
    std::string keptAs;       // their version; empty where nothing of it is missing
  };
  [[nodiscard]] ForeignHands takeForeignHands() { return std::exchange(m_foreign, {}); }

 private:
  [[nodiscard]] bool isTouched(FileGuard::Found found);

  ProfileStore& m_store;
  std::string m_path;
  Access m_access = Access::Entering;
  GameDetails m_details;
  PerSide<Roster> m_rosters;
  ManualTotals m_saved;
  FileGuard m_guard;
  std::function<bool()> m_isOurs;
  bool m_isLost = false;
  bool m_isWatching = true;
  bool m_hasSaved = false;
  PendingWrites m_pending; // what was saved last, and nothing older
  ForeignHands m_foreign;
};

} // namespace hooptab
