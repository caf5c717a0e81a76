#include "game/RunningScore.h"

namespace hooptab {

Scores runningScore(const EventList& events, Scores known) {
  PerSide<int> score = known.empty() ? PerSide<int>() : known.back();
  known.reserve(events.size());
  for (std::size_t place = known.size(); place < events.size(); ++place) {
    const GameEvent& event = events[place];
    if (event.isUnderstood && !event.isDeleted && event.isMade && event.isShot())
      score[*event.player.team] += event.kind()->points;
    known.push_back(score);
  }
  return known;
}

} // namespace hooptab
