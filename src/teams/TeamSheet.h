// The players of the team being edited: which row Add/Save will change, and whether anything is not written
// yet. Decides for the team editor; writes nothing itself.
#pragma once

#include "settings/Texts.h"
#include "teams/TeamStore.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace hooptab {

// The fields of one player, as typed.
struct PlayerFields {
  std::string number;
  std::optional<int> position; // nothing chosen yet
  std::string name;
  std::string height;
  std::string weight;
  std::string age;
  std::string grade;
  friend bool operator==(const PlayerFields&, const PlayerFields&) = default;
};

[[nodiscard]] PlayerFields fieldsOf(const TeamPlayer& player);

enum class PlayerColumn { Number, Name, Position, PositionIndex, Height, Weight, Age, Grade };
inline constexpr int kPlayerColumns = 8;

class TeamSheet {
 public:
  void load(std::vector<TeamPlayer> players); // as they stand in the file
  const std::vector<TeamPlayer>& players() const { return m_players; }
  // Whether the players differ from those in the file; their order does not count.
  [[nodiscard]] bool isChanged() const;

  // What adding these fields will do. A player is renumbered by his name and renamed by his number; a number
  // of one row with the name of another changes nothing, nor does one that another row writes otherwise ("5"
  // and "05").
  enum class Effect { Adds, Changes, Renumbers, Renames, Conflicts, WritesOtherwise };
  [[nodiscard]] static bool isRefused(Effect effect) {
    return effect == Effect::Conflicts || effect == Effect::WritesOtherwise;
  }
  struct Target {
    Effect effect = Effect::Adds;
    int row = -1;      // the row to change, of what is refused the one with the number
    int otherRow = -1; // of a conflict the one with the name
  };
  [[nodiscard]] Target target(const PlayerFields& fields) const;
  // In words, for the line beside the button and as message of a conflict; empty without number or name.
  [[nodiscard]] std::string announcement(const PlayerFields& fields, const Texts& texts) const;
  // The first thing that stands against adding these fields. What is refused for another row is none of
  // them: see target().
  enum class Problem { None, NoJersey, NoPosition, NoName, TooLong };
  [[nodiscard]] static Problem problem(const PlayerFields& fields);
  // Whether the record will be read back whole.
  [[nodiscard]] static bool fits(const PlayerFields& fields);

  // Adds or updates, unless that is refused. Commas become blanks, letters what the file can hold.
  // The row, or -1.
  int put(const PlayerFields& fields);
  bool remove(const std::string& number); // false when nobody has it
  // Stable; by the texts of a column, compared as the window compares texts.
  using IsBefore = std::function<bool(const std::string& left, const std::string& right)>;
  void sort(PlayerColumn column, const Texts& texts, const IsBefore& isBefore);

  [[nodiscard]] std::string text(int row, PlayerColumn column, const Texts& texts) const;
  // A number that two rows have, as only a file changed by hand can bring it; empty when there is none.
  // Without regard to letter case, which the file does not keep apart.
  [[nodiscard]] std::string repeatedNumber() const;

 private:
  [[nodiscard]] int rowOf(const std::string& number, const std::string& name) const;

  std::vector<TeamPlayer> m_players;
  std::vector<TeamPlayer> m_written;
};

} // namespace hooptab
