// Which foul has awarded which free throw: those at one clock, in the order of the fouls. Follows a game
// event by event.
#pragma once

#include "game/GameEvent.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace hooptab {

class FreeThrows {
 public:
  struct Award {
    std::size_t foul = 0;            // place in the list
    int team = 0;                    // who shoots
    std::optional<int> awarded = {}; // none: nobody said how many
    int taken = 0;
    PlayerReference shooter = {}; // who drew the foul; team -1: nobody knows
    [[nodiscard]] bool isOpen() const { return !awarded || taken < *awarded; }
  };
  // Of a throw.
  struct Link {
    enum class Kind { OfFoul, NoFoul, BeyondAward }; // the last: all throws of its foul were taken before
    Kind kind = Kind::NoFoul;
    std::size_t foul = 0;
    int number = 0;                  // from 1
    std::optional<int> awarded = {}; // how many there are
    [[nodiscard]] bool isLast() const { return !awarded || number >= *awarded; }
  };

  // Without time, an award lasts until the ball is in play again.
  explicit FreeThrows(bool hasTime) : m_hasTime(hasTime) {}

  // The next event of the list; of a free throw that counts its foul.
  std::optional<Link> take(const GameEvent& event, std::size_t place);
  // The next throw that this team would take at that clock; null when there is none.
  [[nodiscard]] const Award* next(int team, int period, int clockSeconds) const;

 private:
  bool m_hasTime;
  int m_period = 0;
  int m_clock = 0;
  std::vector<Award> m_awards; // at that clock
};

} // namespace hooptab
