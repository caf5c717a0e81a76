#include "insight/ShotPartners.h"

#include "game/EventDetails.h"
#include "game/Roster.h"
#include "game/ShotFollowUp.h"

namespace hooptab {

namespace {

bool counts(const GameEvent& event) {
  return event.isUnderstood && !event.isDeleted;
}

bool canBe(const GameEvent& block, const GameEvent& shot) {
  if (shot.code == EventCode::GFT || shot.isMade || shot.player.team == block.player.team)
    return false;
  const auto named = PlayerReference::read(block.detail(detail_key::kShooter).value_or(""));
  return !named || named->jersey == shot.player.jersey ||
         Roster::areOneNumber(named->jersey, shot.player.jersey);
}

enum class Way { Back, Forth };

// The next shot that way, where the clock was not started between, and the block can be its.
std::optional<std::size_t> shotNear(const EventList& events, std::size_t block, Way way) {
  std::size_t place = block;
  while (way == Way::Forth ? ++place < events.size() : place-- > 0) {
    const GameEvent& event = events[place];
    if (event.period != events[block].period || (counts(event) && event.code == EventCode::DEPART))
      return std::nullopt;
    if (counts(event) && event.isShot())
      return canBe(events[block], event) ? std::optional(place) : std::nullopt;
  }
  return std::nullopt;
}

} // namespace

std::optional<std::size_t> assistOf(const EventList& events, std::size_t shot) {
  const auto followUp = events[shot].isMade ? followUpOf(events, shot) : std::nullopt;
  const bool isAssist = followUp && events[*followUp].code == EventCode::SA &&
                        events[*followUp].player.team == events[shot].player.team;
  return isAssist ? followUp : std::nullopt;
}

std::map<std::size_t, std::size_t> blockedShots(const EventList& events) {
  std::map<std::size_t, std::size_t> blocks;
  for (std::size_t place = 0; place < events.size(); ++place) {
    if (!counts(events[place]) || events[place].code != EventCode::SBS)
      continue;
    const auto isFree = [&](const std::optional<std::size_t>& shot) {
      return shot && !blocks.contains(*shot);
    };
    const auto before = shotNear(events, place, Way::Back);
    const auto behind = shotNear(events, place, Way::Forth);
    const auto isAtClock = [&](const std::optional<std::size_t>& shot) {
      return isFree(shot) && events[*shot].clockSeconds == events[place].clockSeconds;
    };
    if (isAtClock(behind) && !isAtClock(before))
      blocks.emplace(*behind, place);
    else if (isFree(before))
      blocks.emplace(*before, place);
  }
  return blocks;
}

} // namespace hooptab
