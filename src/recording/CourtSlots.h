// The ten places of the players on court, five of each team: who stands where. Those who stay keep their
// place; after somebody has come, the occupied places are in order of the roster. Where places are kept,
// nobody moves then: who comes takes the place of one who has just left, else the first free one.
#pragma once

#include "game/Side.h"
#include "recording/OnCourt.h"
#include "recording/Slot.h"

#include <array>
#include <optional>

namespace hooptab {

class CourtSlots {
 public:
  int playerIn(Slot slot) const { return m_players[slot.index()]; } // entry; 0: nobody
  std::optional<Slot> slotOf(Side team, int player) const;
  OnCourt onCourt() const;

  // From the next who comes on; nobody moves at once.
  void setKeepsPlaces(bool isOn) { m_keepsPlaces = isOn; }
  bool keepsPlaces() const { return m_keepsPlaces; }

  void clear() { m_players = {}; }
  void put(const OnCourt& lists); // of six or more the first five
  // Who stands in one of two places of a team stands in the other.
  void exchange(Slot slot, Slot other);

  // The same players at the same places.
  friend bool operator==(const CourtSlots& one, const CourtSlots& other) {
    return one.m_players == other.m_players;
  }

 private:
  bool m_keepsPlaces = false;
  std::array<int, kSlots.size()> m_players = {};
};

} // namespace hooptab
