// Teams and players in the settings file: section TEAM with one key a team, and one section a team with one
// key a player. Gives out and frees team ids. Every change is one atomic write; what the disk does not
// take waits with the settings, and is shown as if it were there.
#pragma once

#include "settings/Settings.h"
#include "teams/TeamRecord.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace hooptab {

// A team of the list.
struct TeamEntry {
  std::string key; // of section TEAM
  int id = 0;      // the key's number; 0 for a key that is no positive whole number, which cannot be changed
  std::string abbreviation;
  std::string category;
  std::string name = {};
  std::uint32_t colour = kDefaultTeamColour; // to show
  std::size_t players = 0;                   // in the file
  [[nodiscard]] bool isEditable() const { return id > 0; }
};

struct TeamPlayer {
  std::string number; // the jersey, as written
  PlayerRecord record;
  std::string stored; // the value in the file, whole; empty for a player who is not there yet
  friend bool operator==(const TeamPlayer& left, const TeamPlayer& right) {
    return left.number == right.number && left.record == right.record;
  }
};

class TeamStore {
 public:
  TeamStore(ProfileStore& store, Settings& settings);

  // In file order, without values of three characters or fewer.
  [[nodiscard]] std::vector<TeamEntry> list();
  // An absent team reads as an empty record.
  [[nodiscard]] TeamRecord read(std::string_view key);
  // In file order. A number that occurs twice in the file is there twice.
  [[nodiscard]] std::vector<TeamPlayer> players(std::string_view key);

  // A new team with the default record, named in the language in use; its id, or nothing when the file could
  // not be read. Freed ids are taken first, in file order.
  [[nodiscard]] std::optional<int> create(const Texts& texts);
  // Record and players in one write. False, here and below: the file could not be read, and nothing changes.
  [[nodiscard]] bool save(int id, const TeamRecord& team, const std::vector<TeamPlayer>& players);
  [[nodiscard]] bool savePlayers(int id, const std::vector<TeamPlayer>& players);
  // Frees the id and deletes the players.
  [[nodiscard]] bool remove(int id);

  const Settings& settings() const { return m_settings; }
  ProfileStore& store() const { return m_store; }

 private:
  [[nodiscard]] ProfileText file();
  [[nodiscard]] int freeId();

  ProfileStore& m_store;
  Settings& m_settings;
};

// The entry that a list selects after it was made: the last one named as a new team is, in either language.
[[nodiscard]] int newestTeam(const std::vector<TeamEntry>& teams, const Texts& texts); // -1: none

} // namespace hooptab
