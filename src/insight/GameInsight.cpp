#include "insight/GameInsight.h"

#include "game/Tally.h"
#include "insight/Possessions.h"
#include "insight/ShotOrigins.h"

#include <algorithm>
#include <cstdlib>

namespace hooptab {

namespace {

// What one event adds to every share that it falls into: a few numbers of the many that a share has.
class Happening {
 public:
  void pass(int seconds) { m_seconds = seconds; }
  void begin(const PerSide<int>& possessions) { m_possessions = possessions; }
  void count(const GameEvent& event) {
    const EventKind& kind = *event.kind();
    m_team = *event.player.team;
    m_attempt = kind.isShot ? std::optional(kind.attempts) : std::nullopt;
    m_counter = !kind.isShot || event.isMade ? std::optional(kind.counter) : std::nullopt;
  }
  void addTo(CourtShare& share) const {
    share.seconds += m_seconds;
    for (const Side team : kSides)
      share.possessions[team] += m_possessions[team];
    for (const std::optional<Counter>& counter : {m_attempt, m_counter}) {
      if (counter)
        ++share.counters[m_team].counts[static_cast<std::size_t>(*counter)];
    }
  }

 private:
  int m_seconds = 0;
  PerSide<int> m_possessions = {};
  Side m_team = Side::Visitor;
  std::optional<Counter> m_attempt, m_counter;
};

class Builder {
 public:
  Builder(const Game& game, const std::optional<Starters>& starters)
      : m_game(game), m_tally(m_state, game.roster[Side::Visitor], game.roster[Side::Home]),
        m_possessions(game.events, game.details.minutesPerPeriod > 0),
        m_origins(game.details.minutesPerPeriod > 0) {
    constexpr std::size_t kUsualMatchups = 64;
    m_insight.isFromEvents = game.details.inputType == 0;
    m_insight.matchups.reserve(kUsualMatchups);
    if (starters)
      m_insight.starters = *starters;
  }

  GameInsight build() {
    std::size_t place = 0;
    for (const GameEvent& event : m_game.events) {
      if (event.isUnderstood && !event.isDeleted && m_insight.isFromEvents)
        take(event, place);
      m_tally.apply(event, place++);
    }
    sumMatchups();
    std::erase_if(m_insight.matchups, [](const Matchup& matchup) { return matchup.share.isEmpty(); });
    if (m_insight.isFromEvents)
      countBench();
    else
      countTotals();
    return std::move(m_insight);
  }

 private:
  // Before the tally has it: who is on court belongs to the time and the events before a change.
  void take(const GameEvent& event, std::size_t place) {
    if (!event.isOfTeam())
      followClock(event);
    const Possessions::Stand stand = m_possessions.take(event, place);
    if (const OriginOfShot origin = m_origins.take(event, stand); event.isShot())
      addPoints(event, origin);
    Happening happened;
    happened.begin(stand.begun);
    if (event.isOfPlayer())
      happened.count(event);
    if (stand.begun != PerSide<int>{} || event.isOfPlayer())
      add(event, happened);
    if (event.isShot() && event.isMade)
      m_score[*event.player.team] += event.kind()->points;
  }

  void addPoints(const GameEvent& shot, const OriginOfShot& origin) {
    if (origin.isFastBreak) {
      for (PointOrigins& each : m_insight.origins)
        each.fastBreak = each.fastBreak.value_or(0);
    }
    if (!shot.isMade)
      return;
    const int points = shot.kind()->points;
    PointOrigins& origins = m_insight.origins[*shot.player.team];
    origins.paint += origin.isInPaint ? points : 0;
    origins.fromTurnovers += origin.isFromTurnover ? points : 0;
    origins.secondChance += origin.isSecondChance ? points : 0;
    origins.quick += origin.isQuick ? points : 0;
    if (origin.isFastBreak)
      *origins.fastBreak += points;
  }

  void followClock(const GameEvent& event) {
    if (event.period != m_period) {
      m_period = event.period;
      m_since = m_clock = event.clockSeconds;
    }
    for (const Side team : kSides) {
      if (m_insight.starters[team] == 0 && (event.isOfPlayer() || event.clockSeconds < m_clock))
        m_insight.starters[team] = membersOnCourt(team);
    }
    const int first = std::min(m_clock, longestClutch(event.period));
    const int last = std::min(event.clockSeconds, longestClutch(event.period));
    if (last < first && isClutch(event.period, first))
      m_insight.clutch.seconds += first - last;
    m_clock = event.clockSeconds;
    if (event.code != EventCode::ARRET)
      return;
    if (isAnybodyOnCourt()) {
      Happening time;
      time.pass(m_since - event.clockSeconds);
      addToThoseOnCourt(time);
    }
    m_since = event.clockSeconds;
  }

  void add(const GameEvent& event, const Happening& happened) {
    if (isClutch(event.period, event.clockSeconds))
      happened.addTo(m_insight.clutch);
    addToThoseOnCourt(happened);
  }

  // Players have their share from the lines in the end; of a line behind the hundredth nobody knows who it
  // was.
  void addToThoseOnCourt(const Happening& happened) {
    Matchup& here = matchup();
    happened.addTo(here.share);
    for (const Side team : kSides) {
      for (std::size_t i = 0; here.line[team] == 0 && i < m_state.onCourtCount[team]; ++i) {
        if (const std::size_t player = m_state.onCourt[team][i]; player > 0)
          happened.addTo(m_insight.players[team][player]);
      }
    }
  }
  void sumMatchups() {
    for (const Matchup& matchup : m_insight.matchups) {
      m_insight.whole += matchup.share;
      for (const Side team : kSides) {
        const unsigned members = m_state.lineMembers[team][static_cast<std::size_t>(matchup.line[team])];
        for (std::size_t player = 1; matchup.line[team] > 0 && player < GameState::kPlayerEntries; ++player) {
          if ((members & (1U << player)) != 0)
            m_insight.players[team][player] += matchup.share;
        }
      }
    }
  }

  Matchup& matchup() {
    const PerSide<int> line = {m_state.currentLine[Side::Visitor], m_state.currentLine[Side::Home]};
    if (m_matchup < m_insight.matchups.size() && m_insight.matchups[m_matchup].line == line)
      return m_insight.matchups[m_matchup];
    // By both lines, one behind the place: a file of many changes may have thousands of matchups.
    if (m_places.empty())
      m_places.resize(GameState::kLineEntries * GameState::kLineEntries);
    std::uint16_t& place = m_places[static_cast<std::size_t>(line[Side::Visitor]) * GameState::kLineEntries +
                                    static_cast<std::size_t>(line[Side::Home])];
    if (place == 0) {
      m_insight.matchups.push_back({line, {}});
      place = static_cast<std::uint16_t>(m_insight.matchups.size());
    }
    m_matchup = place - std::size_t{1};
    return m_insight.matchups[m_matchup];
  }

  [[nodiscard]] bool isClutch(int period, int clockSeconds) const {
    const GameDetails& details = m_game.details;
    return details.minutesPerPeriod > 0 && details.periods > 0 && period >= details.periods &&
           clockSeconds <= longestClutch(period) &&
           std::abs(m_score[Side::Visitor] - m_score[Side::Home]) <= GameInsight::kClutchPoints;
  }
  // All of an overtime.
  [[nodiscard]] int longestClutch(int period) const {
    constexpr int kWhole = 100 * 60;
    return period > m_game.details.periods ? kWhole : GameInsight::kClutchSeconds;
  }
  [[nodiscard]] bool isAnybodyOnCourt() const {
    return m_state.onCourtCount[Side::Visitor] + m_state.onCourtCount[Side::Home] > 0;
  }
  [[nodiscard]] std::uint16_t membersOnCourt(Side team) const {
    unsigned members = 0;
    for (std::size_t i = 0; i < m_state.onCourtCount[team]; ++i)
      members |= 1U << m_state.onCourt[team][i];
    return static_cast<std::uint16_t>(members & ~1U);
  }

  void countBench() {
    for (const Side team : kSides) {
      if (m_insight.starters[team] == 0)
        continue;
      int& bench = m_insight.origins[team].bench.emplace(0);
      for (int player = 0; player < static_cast<int>(GameState::kPlayerEntries); ++player) {
        if (!m_insight.isStarter(team, player))
          bench += pointsOf(m_state.players[team][static_cast<std::size_t>(player)].counters);
      }
    }
  }
  void countTotals() {
    for (const Side team : kSides) {
      for (const PlayerEntry& player : m_state.players[team])
        m_insight.whole.counters[team] += player.counters;
    }
  }

  const Game& m_game;
  GameState m_state;
  Tally m_tally;
  Possessions m_possessions;
  GameInsight m_insight;
  ShotOrigins m_origins;
  PerSide<int> m_score = {};
  std::size_t m_matchup = 0;
  std::vector<std::uint16_t> m_places;
  int m_period = 0;
  int m_clock = 0; // of the last event
  int m_since = 0; // from which on the time on court is not counted yet
};

} // namespace

CourtShare GameInsight::ofLine(Side team, int line) const {
  CourtShare sum;
  for (const Matchup& matchup : matchups) {
    if (matchup.line[team] == line)
      sum += matchup.share;
  }
  return sum;
}

GameInsight insightOf(const Game& game, const std::optional<Starters>& starters) {
  return Builder(game, starters).build();
}

double estimatedPossessions(const BoxNumbers& numbers, const TeamRow& ofTeam) {
  constexpr double kThrowsThatEndOne = 0.44;
  constexpr ShotKinds kThrows = shotKinds({EventCode::GFT});
  return numbers.attempted(kAllShotKinds & ~kThrows) + kThrowsThatEndOne * numbers.attempted(kThrows) -
         numbers.counters[Counter::OR] - ofTeam.offensiveRebounds + numbers.counters[Counter::TO] +
         ofTeam.turnovers;
}

} // namespace hooptab
