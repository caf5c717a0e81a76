#include "recording/CourtSlots.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace hooptab {

std::optional<Slot> CourtSlots::slotOf(Side team, int player) const {
  for (const Slot slot : kSlots) {
    if (player > 0 && slot.team() == team && playerIn(slot) == player)
      return slot;
  }
  return std::nullopt;
}

OnCourt CourtSlots::onCourt() const {
  OnCourt entries = {};
  for (const Slot slot : kSlots) {
    if (playerIn(slot) > 0)
      entries[slot.team()] |= 1U << static_cast<unsigned>(playerIn(slot));
  }
  return entries;
}

void CourtSlots::put(const OnCourt& lists) {
  for (const Side team : kSides) {
    const auto first = m_players.begin() + Slot(team, 0).number();
    const auto last = first + Slot::kOfTeam;
    unsigned coming = lists[team];
    std::vector<int*> free; // those that become so first
    for (auto slot = first; slot != last; ++slot) {
      const unsigned bit = *slot > 0 ? 1U << static_cast<unsigned>(*slot) : 0;
      coming &= ~bit;
      if (bit != 0 && (lists[team] & bit) != 0)
        continue;
      if (std::exchange(*slot, 0) != 0)
        free.push_back(&*slot);
    }
    if (coming == 0)
      continue;
    for (auto slot = first; slot != last; ++slot) {
      if (*slot == 0 && std::ranges::find(free, &*slot) == free.end())
        free.push_back(&*slot);
    }
    auto place = free.begin();
    for (int player = 1; player <= Roster::kLargestEntry && place != free.end(); ++player) {
      if ((coming & (1U << static_cast<unsigned>(player))) != 0)
        **place++ = player;
    }
    if (!m_keepsPlaces)
      std::sort(first, last,
                [](int left, int right) { return (left == 0 ? 99 : left) < (right == 0 ? 99 : right); });
  }
}

void CourtSlots::exchange(Slot slot, Slot other) {
  std::swap(m_players[slot.index()], m_players[other.index()]);
}

} // namespace hooptab
