#include "game/RunningScore.h"

namespace hooptab {

Scores runningScore(const EventList& events, Scores known) {
  std::array<int, 2> score = known.empty() ? std::array<int, 2>{} : known.back();
  known.reserve(events.size());
  for (std::size_t place = known.size(); place < events.size(); ++place) {
    const GameEvent& event = events[place];
    if (event.isUnderstood && !event.isDeleted && event.isMade && event.isShot())
      score[static_cast<std::size_t>(event.player.team)] += event.kind()->points;
    known.push_back(score);
  }
  return known;
}

} // namespace hooptab
