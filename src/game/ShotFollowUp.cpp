#include "game/ShotFollowUp.h"

namespace hooptab {

namespace {

bool counts(const GameEvent& event) {
  return event.isUnderstood && !event.isDeleted;
}

bool isFollowUp(const GameEvent& event) {
  return event.isUnderstood &&
         (event.code == EventCode::SA || event.code == EventCode::SOR || event.code == EventCode::SDR);
}

bool ends(const GameEvent& event) {
  return counts(event) && (event.isShot() || event.code == EventCode::DEPART || isFollowUp(event));
}

} // namespace

std::optional<std::size_t> followUpOf(const EventList& events, std::size_t shot) {
  if (!events[shot].isUnderstood || !events[shot].isShot())
    return std::nullopt;
  for (std::size_t i = shot + 1; i < events.size() && events[i].period == events[shot].period; ++i) {
    if (ends(events[i]))
      return isFollowUp(events[i]) ? std::optional(i) : std::nullopt;
  }
  return std::nullopt;
}

std::optional<std::size_t> shotBefore(const EventList& events, std::size_t event) {
  for (std::size_t i = event; i > 0 && events[i - 1].period == events[event].period; --i) {
    if (ends(events[i - 1]))
      return events[i - 1].isShot() ? std::optional(i - 1) : std::nullopt;
  }
  return std::nullopt;
}

std::optional<std::size_t> shotOf(const EventList& events, std::size_t followUp) {
  return isFollowUp(events[followUp]) ? shotBefore(events, followUp) : std::nullopt;
}

} // namespace hooptab
