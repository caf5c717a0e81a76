#include "insight/GameWalk.h"

#include "game/PlayerLookup.h"
#include "insight/Possessions.h"
#include "storage/Module1.h"

#include <algorithm>
#include <cstdint>
#include <utility>

namespace hooptab {

namespace {

class Walker {
 public:
  explicit Walker(const Game& game)
      : m_game(game), m_elapsed(game), m_possessions(game.events, game.details.minutesPerPeriod > 0),
        m_isLive(game.details.inputType == 0) {
    m_walk.events.reserve(game.events.size());
  }

  GameWalk walk() {
    std::size_t place = 0;
    for (const GameEvent& event : m_game.events) {
      if (event.isUnderstood && !event.isDeleted)
        take(event, place);
      ++place;
    }
    for (Stint& stint : m_walk.stints)
      stint.seconds = std::max(stint.seconds, 0);
    return std::move(m_walk);
  }

 private:
  void take(const GameEvent& event, std::size_t place) {
    if (!event.isOfTeam())
      followClock(event);
    WalkedEvent walked;
    walked.place = place;
    walked.elapsed = m_elapsed.at(event.period, event.clockSeconds);
    walked.before = m_score;
    Stint* const stint = event.period == m_period && m_isOnCourt ? &m_walk.stints.back() : nullptr;
    walked.stint = stint != nullptr ? stint->number : 0;
    if (event.isShot() && event.isMade) {
      const Side team = *event.player.team;
      m_score[team] += event.kind()->points;
      if (stint != nullptr)
        stint->points[team] += event.kind()->points;
    }
    walked.after = m_score;
    if (m_isLive)
      takeBall(event, walked, stint);
    m_walk.events.push_back(walked);
  }

  void takeBall(const GameEvent& event, WalkedEvent& walked, Stint* stint) {
    const Possessions::Stand stand = m_possessions.take(event, walked.place);
    walked.possession = stand.number;
    walked.withBall = stand.team;
    for (const Side team : kSides) {
      m_walk.possessions[team] += stand.begun[team];
      if (stint != nullptr)
        stint->possessions[team] += stand.begun[team];
    }
  }

  // Time passes within a period, from stop to stop.
  void followClock(const GameEvent& event) {
    if (event.period != m_period) {
      m_period = event.period;
      m_since = event.clockSeconds;
      if (m_isOnCourt)
        beginStint(event, m_walk.stints.back().onCourt);
    }
    if (event.code != EventCode::ARRET)
      return;
    if (m_isOnCourt) {
      m_walk.stints.back().seconds += m_since - event.clockSeconds;
      m_walk.stints.back().endClock = event.clockSeconds;
    }
    m_since = event.clockSeconds;
    const PerSide<std::vector<std::string>> onCourt = {
        jerseysOf(event.onCourt(Side::Visitor), m_game.roster[Side::Visitor]),
        jerseysOf(event.onCourt(Side::Home), m_game.roster[Side::Home])};
    if (m_isOnCourt && onCourt == m_walk.stints.back().onCourt)
      return;
    m_isOnCourt = !onCourt[Side::Visitor].empty() || !onCourt[Side::Home].empty();
    if (m_isOnCourt)
      beginStint(event, onCourt);
  }

  void beginStint(const GameEvent& event, PerSide<std::vector<std::string>> onCourt) {
    Stint stint;
    stint.number = static_cast<int>(m_walk.stints.size()) + 1;
    stint.period = event.period;
    stint.startClock = stint.endClock = event.clockSeconds;
    stint.onCourt = std::move(onCourt);
    m_walk.stints.push_back(std::move(stint));
  }

  const Game& m_game;
  ElapsedTime m_elapsed;
  Possessions m_possessions;
  bool m_isLive;
  GameWalk m_walk;
  PerSide<int> m_score = {};
  int m_period = 0;
  int m_since = 0; // the clock from which on the stint's seconds are not counted yet
  bool m_isOnCourt = false;
};

} // namespace

const std::vector<std::string>& GameWalk::onCourt(const WalkedEvent& event, Side team) const {
  static const std::vector<std::string> kNobody;
  return event.stint == 0 ? kNobody : stints[static_cast<std::size_t>(event.stint) - 1].onCourt[team];
}

GameWalk walkGame(const Game& game) {
  return Walker(game).walk();
}

std::vector<std::string> jerseysOf(std::string_view list, const Roster& roster) {
  std::vector<std::string> jerseys;
  for (ListedPlayer& listed : playersOnCourt(list, roster))
    jerseys.push_back(std::move(listed.jersey));
  std::ranges::sort(jerseys, Module1::jerseyBefore);
  return jerseys;
}

ElapsedTime::ElapsedTime(const Game& game) {
  if (game.details.minutesPerPeriod <= 0)
    return;
  // A game of more periods than can be played must not make a number that nobody can hold.
  constexpr std::int64_t kMost = kLastPeriod * 100 * 60;
  const std::int64_t length = game.details.minutesPerPeriod * 60;
  const auto regularUpTo = [&](int period) {
    return std::int64_t{std::clamp(period, 0, std::max(game.details.periods, 0))};
  };
  std::int64_t begin = 0;
  std::int64_t end = 0;
  for (const GameEvent& event : game.events) {
    if (!event.isUnderstood || event.isDeleted)
      continue;
    const int last = m_periods.empty() ? 0 : m_periods.back().period;
    if (event.period != last) {
      // Regular periods without events pass by, too.
      begin = std::min(end + length * (regularUpTo(event.period - 1) - regularUpTo(last)), kMost);
      end = begin + (event.period <= game.details.periods ? length : 0);
      m_periods.push_back({event.period, static_cast<int>(begin), 0});
    }
    end = std::max(end, begin + event.clockSeconds);
    m_periods.back().end = static_cast<int>(end);
  }
}

int ElapsedTime::at(int period, int clockSeconds) const {
  const auto found = std::ranges::lower_bound(m_periods, period, {}, &Length::period);
  return found == m_periods.end() ? 0 : found->end - clockSeconds;
}

int ElapsedTime::beginOf(int period) const {
  const auto found = std::ranges::lower_bound(m_periods, period, {}, &Length::period);
  return found == m_periods.end() ? 0 : found->begin;
}

} // namespace hooptab
