// Which slips the events of a game give occasion to: what a hand can get wrong at a shot, a question, a
// start. Reads the original alone.
#pragma once

#include "Dice.h"
#include "Slip.h"
#include "game/GameFile.h"
#include "recording/OnCourt.h"

#include <optional>

namespace hooptab {

class Occasions {
 public:
  // Must outlive it.
  explicit Occasions(const Game& original) : m_original(original) {}

  // For the event at that place, None most of the time.
  [[nodiscard]] Slip choose(std::size_t index, Dice& dice) const;
  // Who stands on court behind a stop, where one or two come for as many.
  [[nodiscard]] std::optional<OnCourt> exchange(const GameEvent& event, const OnCourt& before) const;
  // The clock of the next event of the period that is no start of the clock; 0 when there is none.
  [[nodiscard]] int nextClock(std::size_t index) const;
  // Whether anything but the clock is recorded in the period there or later: who has to go back for it finds
  // no way after a start of the next one.
  [[nodiscard]] bool periodGoesOnFrom(std::size_t index) const;

 private:
  [[nodiscard]] bool isPairOfFreeThrows(std::size_t index) const;

  const Game& m_original;
};

} // namespace hooptab
