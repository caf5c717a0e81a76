// The free throws behind one foul: who shoots, how many, which were made. What is chosen of them is written
// with the foul: how many were awarded, and that it was a shooting foul where nothing else explains them.
// Knows no window.
#pragma once

#include "game/Side.h"
#include "recording/LiveGame.h"

#include <string>
#include <string_view>
#include <vector>

namespace hooptab {

class FoulThrows {
 public:
  static constexpr int kMost = 3;

  // The usual number is proposed: one behind a basket or for a technical foul, three behind a missed three.
  void begin(const LiveGame& game, const EventPlace& foul, Side team, int shooter);
  void end() { m_isOpen = false; }
  bool isOpen() const { return m_isOpen; }
  // After a change of the game: ends with the last throw, and when the foul is gone or an offensive one, or
  // the ball in play. What happens between two throws, substitutions and time-outs, does not disturb.
  void gameChanged(const LiveGame& game);

  Side team() const { return m_team; } // who shoots
  int shooter() const { return m_shooter; }
  int awarded() const { return m_awarded; }
  const std::vector<bool>& taken() const { return m_taken; } // whether each was made
  bool isOver() const { return static_cast<int>(m_taken.size()) >= m_awarded; }
  bool hasKinds() const { return m_hasKinds; }       // of a personal foul
  const std::string& kind() const { return m_kind; } // the detail's value; empty for the usual one

  // Each records at once; false: nothing changed.
  bool shoot(LiveGame& game, bool isMade);
  bool setAwarded(LiveGame& game, int awarded); // not below what was taken
  bool setKind(LiveGame& game, std::string_view kind);

 private:
  [[nodiscard]] int usualNumber(const LiveGame& game) const;
  [[nodiscard]] bool isInBonus(const LiveGame& game) const; // without this foul

  bool m_isOpen = false;
  EventPlace m_foul;
  Side m_team = Side::Visitor;
  int m_shooter = 0;
  int m_awarded = 0;
  bool m_hasKinds = false;
  std::string m_kind;
  std::vector<bool> m_taken;
  std::vector<EventPlace> m_places; // of them
};

} // namespace hooptab
