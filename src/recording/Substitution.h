// Several players in and out at once, now or at an event of the past: who shall stand on court, picked click
// by click in any order and written as one event, and the lines that can be taken with one click. Changes no
// game; whoever shows it hands the choice on.
#pragma once

#include "game/Side.h"
#include "recording/LiveGame.h"

#include <array>
#include <string>
#include <vector>

namespace hooptab {

// A substitution that is put in later at an event, or a stop of which others shall be on court.
struct PastSubstitution {
  enum class What { InsertBefore, InsertBehind, Change };
  What what = What::InsertBefore;
  EventPlace event = {};
};

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
  // With who stood on court there. The game must outlive it.
  Substitution(const LiveGame& game, const PastSubstitution& past);

  // Who was to stay leaves, who was to leave or sat on the bench comes. More than five may be chosen on the
  // way, so that it does not matter who is clicked first.
  void toggle(Side team, int player);
  // These alone, as in OnCourt, or a line's; what was chosen of the team before is forgotten.
  void take(Side team, unsigned players) { m_onCourt[team] = players; }
  void takeLine(Side team, std::size_t line);
  // The last of these steps, as often as there are any.
  void takeBack();

  const OnCourt& onCourt() const { return m_onCourt; }
  bool isChosen(Side team, int player) const { return holds(m_onCourt, team, player); }
  bool wasOnCourt(Side team, int player) const { return holds(m_before, team, player); }
  // At the time of the substitution.
  bool isFouledOut(Side team, int player) const { return holds(m_fouledOut, team, player); }
  int count(Side team) const;
  // What the choice comes to in the past; its conflict is a later stop that would not fit.
  [[nodiscard]] EditPlan plan() const;
  // Something is changed, and nowhere more than five, nor later in the game: fewer can be right, when nobody
  // else can play.
  [[nodiscard]] bool canAccept() const;

  // Five that have played before, most played first: not those who stand on court already, and none with a
  // player who has fouled out.
  const std::vector<Line>& lines(Side team) const { return m_lines[team]; }

 private:
  static bool holds(const OnCourt& onCourt, Side team, int player) {
    return (onCourt[team] >> player & 1U) != 0;
  }

  void fill();

  const LiveGame& m_game;
  std::optional<PastSubstitution> m_past;
  OnCourt m_before;               // the lists that the choice changes
  OnCourt m_onCourt;              // the choice
  std::vector<OnCourt> m_earlier; // it, before each step
  OnCourt m_fouledOut = {};
  OnCourt m_rosters = {}; // who can be chosen at all
  PerSide<std::vector<Line>> m_lines;
};

} // namespace hooptab
