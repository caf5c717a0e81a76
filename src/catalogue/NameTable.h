// Gives each team, player and line that a reader of games meets a small number, so that a game's counters
// carry numbers instead of names. Compares texts exactly: which of them are the same team, player or line
// over a season is decided once for each distinct text, by the catalogue, and not once for each game.
#pragma once

#include "catalogue/ListedGame.h"
#include "game/GameDetails.h"
#include "game/Side.h"

#include <array>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace hooptab {

class NameTable {
 public:
  struct Team {
    std::string abbreviation, category, name;
  };
  struct Player {
    SeasonId team;
    std::string jersey, name; // as the roster has them
  };
  struct Line {
    SeasonId team;
    std::vector<std::string> jerseys; // canonical, in no order
  };

  // By number, without what finds the number of a name.
  struct Lists {
    std::vector<Team> teams;
    std::vector<Player> players;
    std::vector<Line> lines;
  };

  SeasonId team(const GameDetails& details, Side side);
  SeasonId player(SeasonId team, std::string_view jersey, std::string_view name);

  // A jersey as a number: equal for jerseys that are the same one.
  using JerseyCode = std::uint32_t;
  JerseyCode jerseyCode(std::string_view jersey);
  // Of at most five, ascending.
  struct LineKey {
    SeasonId team = kNobody;
    std::array<JerseyCode, 5> jerseys = {};
    std::uint32_t count = 0;
    friend bool operator==(const LineKey&, const LineKey&) = default;
  };
  SeasonId line(const LineKey& key);

  const Lists& lists() const { return m_lists; }

 private:
  struct TextHash {
    using is_transparent = void;
    std::size_t operator()(std::string_view text) const { return std::hash<std::string_view>()(text); }
  };
  // Where a line's number stands in m_lineSlots, or the free place where it belongs.
  [[nodiscard]] std::size_t slotOf(const LineKey& key) const;
  void growLineSlots();

  using TextIds = std::unordered_map<std::string, SeasonId, TextHash, std::equal_to<>>;

  Lists m_lists;
  std::vector<std::string> m_jerseys; // canonical; by code less kFirstOtherCode
  TextIds m_teamIds, m_playerIds, m_jerseyCodes;
  std::vector<LineKey> m_lineKeys;
  // Numbers of lines by hash, kNobody where free; never more than half full. A season asks for a million
  // lines, and a table in one piece answers several times faster than a map of nodes.
  std::vector<SeasonId> m_lineSlots;
  std::string m_key; // kept for its memory
};

} // namespace hooptab
