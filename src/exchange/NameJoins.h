// Names of one player that files write in several ways, and the one under which he is written here: file
// NOMS.INI beside the games, a section for each team (by its abbreviation, or its name where it has none), a
// key for each name as files have it. Which names may be one player's is exchange/PlayerNames.h's to propose.
#pragma once

#include "foreign/ForeignGame.h"
#include "storage/ProfileStore.h"

#include <map>
#include <string>
#include <string_view>

namespace hooptab {

class NameJoins {
 public:
  static constexpr std::string_view kFileName = "NOMS.INI";

  // Those of a folder; none where there is no such file, or it cannot be read.
  [[nodiscard]] static NameJoins of(ProfileStore& store, const std::string& folder);
  // Writes the sections whose names have changed; what else stands in the file stays.
  [[nodiscard]] WriteResult save(ProfileStore& store, const std::string& folder) const;

  // Under `written` from now on; under its own where that is empty or the same. A name that no key of the
  // file can be stays as it is.
  void join(std::string_view team, std::string_view name, std::string_view written);
  // The name itself where nothing else was chosen.
  [[nodiscard]] std::string written(std::string_view team, std::string_view name) const;
  void applyTo(ForeignGame& game) const;

  struct Name {
    std::string name;
    std::string written;
    friend bool operator==(const Name&, const Name&) = default;
  };
  struct Team {
    std::string name; // of the section
    std::map<std::string, Name> names = {};
    friend bool operator==(const Team&, const Team&) = default;
  };
  // In the file's order of names: without regard to letter case, as the file has them.
  [[nodiscard]] const std::map<std::string, Team>& teams() const { return m_teams; }
  friend bool operator==(const NameJoins&, const NameJoins&) = default;

 private:
  std::map<std::string, Team> m_teams;
};

// What a team is called in lists: its abbreviation, or its name.
[[nodiscard]] const std::string& shortNameOf(const ForeignTeam& team);
// In small letters of the code page: what is equal is one name for a profile file.
[[nodiscard]] std::string foldedName(std::string_view name);

} // namespace hooptab
