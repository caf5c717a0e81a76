// Several players in and out at once: who shall stand on court, picked click by click in any order and
// written as one event, and the lines that can be taken with one click. Changes no game; whoever shows it
// hands the choice on.
#pragma once

#include "live/LiveGame.h"

#include <array>
#include <string>
#include <vector>

namespace hooptab {

class Substitution {
 public:
  static constexpr std::size_t kMostLines = 6;

  struct Line {
    unsigned players = 0; // as in OnCourt
    int seconds = 0;      // that it has played together
    std::string jerseys = {};
    friend bool operator==(const Line&, const Line&) = default;
  };

  // Begins with who stands on court.
  explicit Substitution(const LiveGame& game);

  // Who was to stay leaves, who was to leave or sat on the bench comes. More than five may be chosen on the
  // way, so that it does not matter who is clicked first.
  void toggle(int team, int player);
  // The line alone; what was chosen of the team before is forgotten.
  void takeLine(int team, std::size_t line);

  const OnCourt& onCourt() const { return m_onCourt; }
  bool isChosen(int team, int player) const { return holds(m_onCourt, team, player); }
  bool wasOnCourt(int team, int player) const { return holds(m_before, team, player); }
  int count(int team) const;
  // Something is changed, and nowhere more than five: fewer can be right, when nobody else can play.
  [[nodiscard]] bool canAccept() const;

  // Five that have played before, most played first: not those who stand on court already, and none with a
  // player who has fouled out.
  const std::vector<Line>& lines(int team) const { return m_lines[static_cast<std::size_t>(team)]; }

 private:
  static bool holds(const OnCourt& onCourt, int team, int player) {
    return (onCourt[static_cast<std::size_t>(team)] >> player & 1U) != 0;
  }

  OnCourt m_before;
  OnCourt m_onCourt;
  OnCourt m_rosters = {}; // who can be chosen at all
  std::array<std::vector<Line>, 2> m_lines;
};

} // namespace hooptab
