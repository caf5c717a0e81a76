#include "game/RunningScore.h"

namespace hooptab {

std::vector<std::array<int, 2>> runningScore(const EventList& events) {
  std::vector<std::array<int, 2>> scores;
  scores.reserve(events.size());
  std::array<int, 2> score = {};
  for (const GameEvent& event : events) {
    if (event.isUnderstood && !event.isDeleted && event.isMade && event.isShot())
      score[static_cast<std::size_t>(event.player.team)] += event.kind()->points;
    scores.push_back(score);
  }
  return scores;
}

} // namespace hooptab
