#include "recording/LivePanel.h"

#include "recording/LiveFigures.h"
#include "recording/LiveGame.h"

#include <algorithm>

namespace hooptab {

namespace {

LivePanel::FoulMark foulMark(int count, int limit) {
  if (limit <= 0)
    return LivePanel::FoulMark::None;
  if (count >= limit)
    return LivePanel::FoulMark::Reached;
  // A first foul has to be made before anybody is warned of the next.
  return count > 0 && count == limit - 1 ? LivePanel::FoulMark::OneLeft : LivePanel::FoulMark::None;
}

int personalFoulsOfFirstPeriod(const LiveMoment& game, Side team, int player) {
  int fouls = 0;
  for (const GameEvent& event : game.game().events) {
    if (event.period > 1)
      break;
    if (event.isUnderstood && !event.isDeleted && event.code == EventCode::SPF && event.player.team == team &&
        game.game().roster[team].entryOf(event.player.jersey) == player)
      ++fouls;
  }
  return fouls;
}

LivePanel::FoulMark personalFoulMark(const LiveMoment& game, Side team, int player) {
  constexpr int kEarlyFouls = 2;
  const GameDetails& rules = game.game().details;
  const int count = game.state().players[team][static_cast<std::size_t>(player)].counters[Counter::PF];
  const LivePanel::FoulMark mark = foulMark(count, rules.personalFoulLimit);
  const bool isFirstHalf = game.period() <= std::max(rules.periods / 2, 1);
  if (mark != LivePanel::FoulMark::None || rules.personalFoulLimit <= 0 || count < kEarlyFouls ||
      !isFirstHalf)
    return mark;
  return personalFoulsOfFirstPeriod(game, team, player) >= kEarlyFouls ? LivePanel::FoulMark::EarlyTwo : mark;
}

int sumOfShots(const Counters& counters, Counter EventKind::*which) {
  int sum = 0;
  for (const EventKind& kind : eventKinds()) {
    if (kind.isShot)
      sum += counters[kind.*which];
  }
  return sum;
}

} // namespace

LivePanel LivePanel::of(const LiveGame& game, Slot slot) {
  LivePanel panel;
  panel.team = slot.team();
  const RosterPlayer* const player = game.game().roster[panel.team].player(game.playerIn(slot));
  if (player == nullptr)
    return panel;
  panel.player = game.playerIn(slot);
  panel.jersey = player->jersey;
  panel.name = player->name;
  panel.counters = game.state().players[panel.team][static_cast<std::size_t>(panel.player)].counters;
  panel.personalFouls = personalFoulMark(game, panel.team, panel.player);
  panel.technicalFouls = foulMark(panel.counters[Counter::TF], game.game().details.technicalFoulLimit);
  panel.timeOnCourt = timeOf(game, slot);
  for (const Shot& shot : game.state().shots) {
    if (shot.team == panel.team && shot.player == panel.player && shot.hasPlace)
      panel.shots.push_back({{shot.x, shot.y}, shot.isMade});
  }
  return panel;
}

LivePanel::FoulMark LivePanel::foulTrouble(const LiveMoment& game, Side team, int player) {
  return LiveFigures(game).isFouledOut(team, player) ? FoulMark::Reached
                                                     : personalFoulMark(game, team, player);
}

std::string LivePanel::timeOf(const LiveGame& game, Slot slot) {
  const int player = game.playerIn(slot);
  return player == 0 ? std::string()
                     : Module1::clockText(LiveFigures(game).secondsOnCourt(slot.team(), player));
}

int LivePanel::made() const {
  return sumOfShots(counters, &EventKind::counter);
}

int LivePanel::attempts() const {
  return sumOfShots(counters, &EventKind::attempts);
}

} // namespace hooptab
