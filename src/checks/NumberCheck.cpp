#include "checks/NumberCheck.h"

#include <algorithm>

namespace hooptab {

namespace {

// As a recorded game has them where nothing was inserted.
bool areInOrder(const EventList& events) {
  int last = 0;
  return std::ranges::all_of(events, [&last](const GameEvent& event) { return event.number == ++last; });
}

} // namespace

void checkNumbers(const Game& game, std::vector<Finding>& findings) {
  if (areInOrder(game.events))
    return;
  struct Numbered {
    int number;
    std::size_t event;
  };
  std::vector<Numbered> events;
  events.reserve(game.events.size());
  std::size_t place = 0;
  for (auto event = game.events.begin(); event != game.events.end(); ++event, ++place) {
    if (const int number = event->number; number > 0)
      events.push_back({number, place});
  }
  if (!std::ranges::is_sorted(events, {}, &Numbered::number))
    std::ranges::stable_sort(events, {}, &Numbered::number);
  int last = 0;
  for (const auto& [number, event] : events) {
    if (number == last)
      findings.push_back(
          {.kind = FindingKind::NumberTwice, .event = event, .subject = std::to_string(number)});
    else if (number == last + 2)
      findings.push_back(
          {.kind = FindingKind::NumbersMissing, .event = event, .subject = std::to_string(last + 1)});
    else if (number > last + 2)
      findings.push_back({.kind = FindingKind::NumbersMissing,
                          .event = event,
                          .subject = std::to_string(last + 1) + "–" + std::to_string(number - 1)});
    last = number;
  }
}

} // namespace hooptab
