// The events of the game that is being recorded: in memory, counted by the tally, and on disk. A change is
// counted at once and written at once; what the disk does not take waits and is written as soon as it does.
// What others make of the file meanwhile is brought together with it. Knows no clock and no rules of the
// game.
#pragma once

#include "game/GameFile.h"
#include "game/GameOnDisk.h"
#include "game/Side.h"
#include "game/Tally.h"
#include "recording/GameNews.h"
#include "recording/OnCourt.h"

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace hooptab {

class LiveLog {
 public:
  explicit LiveLog(ProfileStore& store) : m_store(store), m_disk(store) {}
  LiveLog(const LiveLog&) = delete; // the tally refers to the counters of this object
  LiveLog& operator=(const LiveLog&) = delete;

  // On a problem nothing is changed.
  [[nodiscard]] GameFileProblem open(const std::string& path);

  const Game& game() const { return m_game; }
  const GameState& state() const { return m_state; }
  Rosters rosters() const { return {m_game.roster[Side::Visitor], m_game.roster[Side::Home]}; }
  const std::optional<CountOutOfRange>& outOfRange() const { return m_tally->outOfRange(); }

  // The number of the next new event; each is given out once.
  int nextNumber() const { return m_nextNumber; }
  [[nodiscard]] std::string takeKey() { return std::to_string(m_nextNumber++); }
  // False, and nothing changed, when one of the steps cannot be taken. `wallClock` is when the new events
  // happened, in milliseconds of UTC; of those put in later nobody knows it.
  bool change(const std::vector<EventChange>& steps, std::optional<std::int64_t> wallClock = std::nullopt);
  // Keys of DETAILS and their values; the details in memory follow.
  void setDetails(const std::vector<std::pair<std::string, std::string>>& keysAndValues);
  // One player more, behind all others, who counts from the first event on that names him.
  void addPlayer(Side team, RosterPlayer player);
  // Findings of an event that count no longer as such, by the numbers of their texts; until the event
  // changes.
  void accept(int event, const std::vector<int>& findings);

  // The file, as this log keeps it.
  const GameOnDisk& disk() const { return m_disk; }
  GameOnDisk& disk() { return m_disk; }
  bool isOnDisk() const { return m_disk.isOnDisk(); }
  std::size_t waiting() const { return m_disk.waiting(); }
  // Looks at the file, brings it back to what was recorded and writes what waits. Whether everything is on
  // disk now.
  bool settle() { return m_disk.settle(m_game.events); }
  bool writeCopy(const std::string& path) { return m_disk.writeCopy(path, m_game.events); }
  // Takes in what others made of the file: events, players and details. Called when nothing is being changed;
  // what to tell the user.
  [[nodiscard]] ForeignHands takeForeignHands();

  // What has become of events, players and details since it was last asked for.
  [[nodiscard]] GameNews takeNews() { return std::exchange(m_news, {}); }

  // In which counts all events, counted anew, differ from what counting them one by one has found; empty when
  // both agree, as they must.
  [[nodiscard]] std::string difference() const;
  [[nodiscard]] bool countsAgree() const { return difference().empty(); }

 private:
  // Of events that the steps change nothing is accepted any more.
  GameOnDisk::Values forgetAccepted(const std::vector<EventChange>& steps);
  GameOnDisk::Values timesOf(const std::vector<EventChange>& steps, std::int64_t wallClock) const;
  void note(const std::vector<EventChange>& steps);
  void count(std::size_t from); // the events from that place on
  void countAll();

  ProfileStore& m_store;
  Game m_game;
  GameState m_state;
  std::optional<Tally> m_tally;
  int m_nextNumber = 1;
  GameOnDisk m_disk;
  GameNews m_news; // since it was last asked for
};

} // namespace hooptab
