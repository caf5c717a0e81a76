// Which foul has awarded which free throw: those at one clock, fouls of which the award is known first, else
// in the order of the fouls. A throw may stand before its foul. Follows a game event by event.
#pragma once

#include "game/GameEvent.h"
#include "game/Side.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace hooptab {

// Seconds by which a clock is stopped behind the foul that stops it.
inline constexpr int kLongestReaction = 5;
// Seconds by which it can be elsewhere when throws of which the number is known are taken.
inline constexpr int kLongestOwed = 15;
// What nobody does while free throws are shot.
[[nodiscard]] bool isBallInPlay(const GameEvent& event);

class FreeThrows {
 public:
  struct Award {
    std::size_t foul = 0;            // place in the list
    Side team = Side::Visitor;       // who shoots
    std::optional<int> awarded = {}; // none: nobody said how many
    int taken = 0;                   // of them
    int beyond = 0;                  // after all that were awarded
    PlayerReference shooter = {};    // who drew the foul; without a team: nobody knows
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
  // One that counts for no foul, as far as the game is known.
  struct LooseThrow {
    std::size_t place = 0;
    Side team = Side::Visitor;
    Link link;
  };
  struct Stand {
    std::vector<Award> awards;
    std::vector<LooseThrow> loose;
  };

  // Without time, an award lasts until the ball is in play again.
  explicit FreeThrows(bool hasTime) : m_hasTime(hasTime) {}

  // The next event of the list; of a free throw that counts its foul.
  std::optional<Link> take(const GameEvent& event, std::size_t place);
  // From which a throw of that player would be at that clock; null when there is none.
  [[nodiscard]] const Award* next(const PlayerReference& thrower, int period, int clockSeconds) const;
  // At the clock of the last event.
  [[nodiscard]] const Stand& stand() const { return m_now; }
  // What the last event has ended, by another clock or, without time, by the ball's being in play.
  [[nodiscard]] const Stand& ended() const { return m_ended; }

 private:
  void move(const GameEvent& event);
  [[nodiscard]] bool isOwed() const;
  void award(const GameEvent& foul, std::size_t place);
  [[nodiscard]] Link link(const GameEvent& shot, std::size_t place);

  bool m_hasTime;
  int m_period = 0;
  int m_clock = 0;
  bool m_isDead = false; // a foul has been called, and the ball was not in play since
  Stand m_now;
  Stand m_ended;
};

} // namespace hooptab
