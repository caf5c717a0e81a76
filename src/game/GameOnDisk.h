// The file of a game that is being recorded. Writes each change at once, and sees to it that what was
// recorded stays there: where others have changed, deleted or replaced the file, both are brought together,
// and what gives way is kept. What the disk does not take waits, and stands in a rescue file meanwhile. Holds
// no events itself: its owner brings all of them with every call.
#pragma once

#include "game/GameFile.h"
#include "game/GameMerge.h"
#include "storage/FileGuard.h"
#include "storage/PendingWrites.h"

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace hooptab {

// What others did to a game's file and what came of it; for one line to the user.
struct ForeignHands {
  int added = 0;                   // events of theirs that count now
  int restored = 0;                // events of ours that were written again
  std::vector<EventPlace> gaveWay; // theirs that do not count
  bool isRewritten = false;        // the whole file: it was gone, cut off, or another thing
  bool isTouched = false;          // anything of the above, or of the details and players
  std::string keptAs;              // the foreign version, where something of it is not in the file
};

class GameOnDisk {
 public:
  using Values = std::vector<std::pair<std::string, std::string>>; // keys and their values
  using Sections = std::map<std::string_view, Values>;

  explicit GameOnDisk(ProfileStore& store) : m_guard(store, isGame), m_store(store) {}

  // The game whose file was just read so.
  void open(const std::string& path, const ProfileText& text);
  // Where a copy of everything goes while the file cannot be written; empty for nowhere.
  void setRescueFolder(std::string folder) { m_rescueFolder = std::move(folder); }
  // Asked before each write: false when somebody else writes this file now. From then on nothing more goes
  // there; the rescue file takes it.
  void setOwnership(std::function<bool()> isOurs) { m_isOurs = std::move(isOurs); }

  // Off: nothing is looked at or written, until the next open(); for a file that gives way to another game.
  void setWatching(bool isOn) { m_isWatching = isOn; }

  // Each returns whether everything is on disk. `all` are the events as they are now, the steps taken.
  // With steps go the keys of other sections that change with them, as one write.
  bool change(const std::vector<EventChange>& steps, const EventList& all, const Sections& more = {});
  bool set(std::string_view section, const Values& values, const EventList& all);
  // Looks at the file, brings it back to what was recorded, and writes what waits.
  bool settle(const EventList& all);

  bool isOnDisk() const { return m_pending.isEmpty(); }
  std::size_t waiting() const { return m_pending.size(); } // changes
  const PendingWrites& pending() const { return m_pending; }
  bool isLost() const { return m_isLost; }                     // somebody else writes this file
  const std::string& rescuedAs() const { return m_rescuedAs; } // empty without a rescue file

  // The file as it was left; what others made of it included.
  const ProfileText& text() const { return m_guard.left(); }
  bool hasForeignHands() const { return m_foreign.isTouched; }
  // What others did since it was last asked for.
  [[nodiscard]] ForeignHands takeForeignHands() { return std::exchange(m_foreign, {}); }

  // The whole game in another file.
  bool writeCopy(const std::string& path, const EventList& all);

 private:
  WriteResult lookAndSettle(const EventList& all);
  WriteResult settleFound(const EventList& all, FileGuard::Found found);
  WriteResult writeSteps(const EventList& all);
  WriteResult bringTogether(const EventList& all);
  WriteResult rewrite(const EventList& all);
  void noteWhatWasKept();
  void rescue(const EventList& all);
  void note(std::string_view section, const Values& values);
  void addValues(const ProfileText& text, ProfileBatch& batch) const;
  void addTimes(const GameMerge& merge, const ProfileText& theirs, ProfileBatch& batch) const;
  void addMissingPlayers(const EventList& all, ProfileBatch& batch);
  ProfileBatch whole(const EventList& all) const;

  FileGuard m_guard;
  ProfileStore& m_store;
  std::string m_rescueFolder;
  std::string m_rescuedAs;
  std::size_t m_rescuedChanges = 0;
  std::function<bool()> m_isOurs;
  bool m_isLost = false;
  bool m_isWatching = true;

  std::vector<EventChange> m_steps; // that wait
  struct Value {
    std::optional<std::string> before; // as stored when it was set
    std::string value;
    bool isWaiting = true;
  };
  std::map<std::pair<std::string, std::string>, Value>
      m_values;            // by section and key; set since the game was opened
  PendingWrites m_pending; // counts the changes
  ForeignHands m_foreign;
};

} // namespace hooptab
