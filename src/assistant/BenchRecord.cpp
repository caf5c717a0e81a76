#include "assistant/BenchRecord.h"

#include "recording/LiveMoment.h"
#include "recording/OnCourt.h"

#include <algorithm>

namespace hooptab {

namespace {

bool counts(const GameEvent& event) {
  return event.isUnderstood && !event.isDeleted;
}

// The game as it stood behind that event.
Game gameUpTo(const Game& game, const GameEvent& last) {
  Game part = game;
  part.events = {};
  for (const GameEvent& event : game.events) {
    part.events.appendOwned(event.period, event.key, event.whole());
    if (&event == &last)
      break;
  }
  return part;
}

} // namespace

BenchRecord::BenchRecord(const LiveMoment& game)
    : insight(insightOf(game.game())), fives(Fives::of(game, insight)), run(lastRun(game.game().events)),
      m_elapsed(game.game()) {
  for (const GameEvent& event : game.game().events) {
    if (!counts(event))
      continue;
    m_lastPeriod = event.period;
    m_lastSeconds = m_elapsed.at(event.period, event.clockSeconds);
  }
  followTimeOuts(game.game());
  followRun(game.game());
  followTurns(game);
}

// Where the present period has no event yet, no time has passed since the last one.
int BenchRecord::secondsOfPlay(const LiveMoment& game) const {
  return game.period() == m_lastPeriod ? m_elapsed.at(m_lastPeriod, game.clockSeconds()) : m_lastSeconds;
}

std::optional<int> BenchRecord::secondsSinceTurn(const LiveMoment& game, Side team, int player) const {
  const std::optional<int>& at = m_turns[team][static_cast<std::size_t>(player)].at;
  return at && game.hasTime() ? std::optional(std::max(secondsOfPlay(game) - *at, 0)) : std::nullopt;
}

// Shares add up: what came behind an event is the whole less what there was with it.
void BenchRecord::followTimeOuts(const Game& game) {
  const GameEvent* timeOut = nullptr;
  for (const GameEvent& event : game.events) {
    if (!counts(event))
      continue;
    if (event.code == EventCode::XTO) {
      timeOut = &event;
      since.turnovers = {};
    } else if ((event.code == EventCode::STO || event.code == EventCode::XTV) && event.player.team) {
      ++since.turnovers[*event.player.team];
    }
  }
  since.share = insight.whole;
  if (timeOut == nullptr)
    return;
  since.period = timeOut->period;
  since.clockSeconds = timeOut->clockSeconds;
  since.share -= insightOf(gameUpTo(game, *timeOut)).whole;
}

void BenchRecord::followRun(const Game& game) {
  if (!run)
    return;
  const EventList& events = game.events;
  m_runBegan = m_elapsed.at(events[run->first].period, events[run->first].clockSeconds);
  std::array<int, GameState::kPlayerEntries> points = {};
  for (std::size_t place = run->first; place < events.size(); ++place) {
    const GameEvent& event = events[place];
    if (counts(event) && event.isShot() && event.isMade)
      points[static_cast<std::size_t>(game.roster[run->team].entryOf(event.player.jersey))] +=
          event.kind()->points;
  }
  for (std::size_t player = 0; player < points.size(); ++player) {
    if (points[player] > 0)
      scorers.push_back({static_cast<int>(player), points[player]});
  }
  std::ranges::stable_sort(scorers, std::ranges::greater(), &Scorer::points);
}

void BenchRecord::followTurns(const LiveMoment& game) {
  const Rosters rosters = {game.game().roster[Side::Visitor], game.game().roster[Side::Home]};
  OnCourt onCourt = {};
  for (const GameEvent& event : game.game().events) {
    const std::optional<OnCourt> lists = onCourtOf(event, rosters);
    if (!lists)
      continue;
    const int at = m_elapsed.at(event.period, event.clockSeconds);
    for (const Side team : kSides) {
      const unsigned turned = (*lists)[team] ^ onCourt[team];
      for (std::size_t player = 1; player < GameState::kPlayerEntries; ++player) {
        if ((turned >> player & 1U) == 0)
          continue;
        Turn& turn = m_turns[team][player];
        turn = turn.at == at ? Turn{turn.before, turn.before} : Turn{at, turn.at};
      }
    }
    onCourt = *lists;
  }
}

} // namespace hooptab
