// A place on court: ten of them, five of each team, the visitors' first. Who stands there is known to
// CourtSlots.
#pragma once

#include "game/Side.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace hooptab {

class Slot {
 public:
  static constexpr int kOfTeam = 5;

  constexpr Slot(Side team, int place) // of the team's five, from 0
      : m_number(static_cast<std::uint8_t>(numberOf(team) * kOfTeam + place)) {}

  [[nodiscard]] constexpr Side team() const { return m_number < kOfTeam ? Side::Visitor : Side::Home; }
  // Among all ten, from 0: the names of a panel's controls have it.
  [[nodiscard]] constexpr int number() const { return m_number; }
  [[nodiscard]] constexpr std::size_t index() const { return m_number; }
  friend constexpr bool operator==(Slot, Slot) = default;

 private:
  std::uint8_t m_number;
};

inline constexpr std::array kSlots = {
    Slot(Side::Visitor, 0), Slot(Side::Visitor, 1), Slot(Side::Visitor, 2), Slot(Side::Visitor, 3),
    Slot(Side::Visitor, 4), Slot(Side::Home, 0),    Slot(Side::Home, 1),    Slot(Side::Home, 2),
    Slot(Side::Home, 3),    Slot(Side::Home, 4),
};

} // namespace hooptab
