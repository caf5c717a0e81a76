#include "recording/Fives.h"

#include "game/PlayerLookup.h"
#include "recording/LiveFigures.h"

#include <bit>
#include <tuple>

namespace hooptab {

namespace {

using PointsOfLines = PerSide<std::array<int, GameState::kLineEntries>>;

// The counters of a line have its own points alone.
PointsOfLines pointsAgainst(const Game& game) {
  PointsOfLines points = {};
  GameState state;
  Tally tally(state, game.roster[Side::Visitor], game.roster[Side::Home]);
  std::size_t index = 0;
  for (const GameEvent& event : game.events) {
    tally.apply(event, index++);
    if (!event.isUnderstood || event.isDeleted || !event.isShot() || !event.isMade)
      continue;
    const Side other = otherSide(*event.player.team);
    points[other][state.currentLine[other]] += event.kind()->points;
  }
  return points;
}

} // namespace

Fives Fives::of(const LiveGame& game) {
  Fives fives;
  const GameState& state = game.state();
  const PointsOfLines against = pointsAgainst(game.game());
  for (const Side team : kSides) {
    const Roster& roster = game.game().roster[team];
    const std::size_t onCourt = state.currentLine[team];
    for (std::size_t line = 1; line <= static_cast<std::size_t>(state.usedLines[team]); ++line) {
      const LineEntry& entry = state.lines[team][line];
      const FivePlay play{.players = state.lineMembers[team][line] & ~1U,
                          .jerseys = jerseysOnCourt(entry.list, roster),
                          .seconds = line == onCourt ? LiveFigures(game).secondsOfLine(team) : entry.seconds,
                          .pointsFor = pointsOf(entry.counters),
                          .pointsAgainst = against[team][line]};
      if (line == onCourt)
        fives.current[team] = play;
      const bool isFive = playersOnCourt(entry.list, roster).size() == kMostOnCourt;
      const auto& best = fives.best[team];
      if (isFive && play.seconds >= kShortest &&
          (!best ||
           std::tuple(play.plusMinus(), play.seconds) > std::tuple(best->plusMinus(), best->seconds)))
        fives.best[team] = play;
    }
  }
  return fives;
}

} // namespace hooptab
