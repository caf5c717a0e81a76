#include "live/CourtSlots.h"

#include <algorithm>

namespace hooptab {

std::optional<int> CourtSlots::slotOf(int team, int player) const {
  for (int slot = team * kSlotsOfTeam; slot < (team + 1) * kSlotsOfTeam; ++slot) {
    if (player > 0 && playerIn(slot) == player)
      return slot;
  }
  return std::nullopt;
}

OnCourt CourtSlots::onCourt() const {
  OnCourt entries = {};
  for (int slot = 0; slot < kSlots; ++slot) {
    if (playerIn(slot) > 0)
      entries[static_cast<std::size_t>(teamOf(slot))] |= 1U << static_cast<unsigned>(playerIn(slot));
  }
  return entries;
}

void CourtSlots::put(const OnCourt& lists) {
  for (int team = 0; team < 2; ++team) {
    const auto first = m_players.begin() + team * kSlotsOfTeam;
    const auto last = first + kSlotsOfTeam;
    unsigned coming = lists[static_cast<std::size_t>(team)];
    for (auto slot = first; slot != last; ++slot) {
      const unsigned bit = *slot > 0 ? 1U << static_cast<unsigned>(*slot) : 0;
      if ((coming & bit) == 0)
        *slot = 0;
      coming &= ~bit;
    }
    if (coming == 0)
      continue;
    auto free = first;
    for (int player = 1; player <= Roster::kLargestEntry; ++player) {
      if ((coming & (1U << static_cast<unsigned>(player))) == 0)
        continue;
      free = std::find(free, last, 0);
      if (free == last)
        break;
      *free = player;
    }
    std::sort(first, last,
              [](int left, int right) { return (left == 0 ? 99 : left) < (right == 0 ? 99 : right); });
  }
}

} // namespace hooptab
