// The names that files have for the players of each team, and which of them may be one player's: the same
// team, the same number, and names that differ only in letter case, accents, order or initials. Two that
// stand in one game together are two players. Only proposes.
#pragma once

#include "foreign/ForeignGame.h"

#include <map>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace hooptab {

// Whether two names may be one person's, by their letters alone: "J. ROY" and "Roy, José".
[[nodiscard]] bool mayBeOneName(std::string_view left, std::string_view right);

struct NameProposal {
  std::string team;
  std::string jersey;
  std::string name;    // as files have it
  std::string written; // another of theirs, the fullest
};

class PlayerNames {
 public:
  void add(const ForeignGame& game);
  // In the order of teams and numbers. A name that fits two others which do not fit each other is in none.
  [[nodiscard]] std::vector<NameProposal> proposals() const;

 private:
  using Names = std::map<std::string, int>; // in how many games each
  using Pair = std::pair<std::string, std::string>;
  [[nodiscard]] bool canJoin(const std::string& team, const std::string& left,
                             const std::string& right) const;

  std::map<Pair, Names> m_names; // by team and number
  std::map<std::string, std::set<Pair>> m_together;
};

} // namespace hooptab
