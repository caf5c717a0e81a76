#include "game/Tally.h"

#include "game/EventDetails.h"
#include "storage/Module1.h"

#include <algorithm>
#include <limits>

namespace hooptab {

namespace {

bool isFull(std::int16_t count, int amount) {
  return count > std::numeric_limits<std::int16_t>::max() - amount;
}

void add(std::int16_t& count, int amount) {
  count = static_cast<std::int16_t>(count + amount);
}

// A game of many more periods than can be played must not make a number of which nobody can take the sum.
void addTime(std::int32_t& sum, int seconds) {
  constexpr std::int32_t kMost = kLastPeriod * 100 * 60;
  sum = std::clamp(sum + seconds, -kMost, kMost);
}

} // namespace

Tally::Tally(GameState& state, const Roster& visitors, const Roster& home)
    : m_state(state), m_rosters{&visitors, &home} {
  clear();
}

void Tally::clear() {
  m_state.players = {};
  for (const Side team : kSides) {
    // Entry 0 counts too; those past the used ones were never touched.
    const auto used = static_cast<std::size_t>(m_state.usedLines[team]);
    std::fill_n(m_state.lines[team].begin(), used + 1, LineEntry());
    m_lastList[team].clear();
    m_points[team] = 0;
  }
  m_state.periods = {};
  m_state.usedLines = {};
  m_state.wereOnCourt = {};
  m_state.lead = {};
  m_state.extras = {};
  m_state.teamRows = {};
  m_state.shots.clear();
  m_state.period = 1;
  m_state.clockSeconds = 0;
  m_state.onCourt = {};
  m_state.onCourtCount = {};
  m_state.currentLine = {};
  m_state.lineStartClock = {};
  m_outOfRange.reset();
}

void Tally::apply(const GameEvent& event, std::size_t eventIndex) {
  if (event.isDeleted || !event.isUnderstood)
    return;
  // What a team did moves no clock, so that readers who pass it over have the same times.
  if (event.isOfTeam())
    return countOfTeam(event);
  trackClock(event);
  if (event.code == EventCode::ARRET)
    changeLines(event);
  else if (event.code != EventCode::DEPART)
    count(event, eventIndex);
}

// Time passes only within a period: across a break nothing is added to lines or lead.
void Tally::trackClock(const GameEvent& event) {
  LeadTracker& lead = m_state.lead;
  if (event.period != m_state.period) {
    m_state.period = event.period;
    m_state.lineStartClock = {event.clockSeconds, event.clockSeconds};
    lead.previousClock = event.clockSeconds;
  }
  if (lead.isStarted)
    addTime(lead.seconds[static_cast<std::size_t>(lead.state)], lead.previousClock - event.clockSeconds);
  lead.isStarted = true;
  lead.previousClock = event.clockSeconds;
  m_state.clockSeconds = event.clockSeconds;
}

void Tally::changeLines(const GameEvent& event) {
  for (const Side team : kSides) {
    creditTime(team, event.clockSeconds);
    setLine(team, event.onCourt(team));
  }
}

// The time since the line came on court goes to it and to its players; entry 0, of either, gets none.
void Tally::creditTime(Side team, int clockSeconds) {
  const int played = m_state.lineStartClock[team] - clockSeconds;
  m_state.lineStartClock[team] = clockSeconds;
  if (const std::size_t line = m_state.currentLine[team]; line > 0)
    addTime(m_state.lines[team][line].seconds, played);
  for (std::size_t i = 0; i < m_state.onCourtCount[team]; ++i) {
    if (const std::size_t player = m_state.onCourt[team][i]; player > 0)
      addTime(m_state.players[team][player].seconds, played);
  }
}

void Tally::setLine(Side team, std::string_view list) {
  if (m_lastList[team] == list)
    return;
  m_lastList[team] = list;

  const Roster& roster = *m_rosters[team];
  unsigned members = 0;
  std::vector<std::string> strangers; // jerseys that are in no roster
  std::array<std::uint8_t, 5> onCourt = {};
  std::uint8_t count = 0;
  for (const std::string_view jersey : Module1::countedJerseys(list)) {
    const int entry = roster.entryOfListed(jersey);
    if (entry > 0 && (members & (1U << entry)) != 0)
      continue;
    if (entry == 0) {
      std::string stranger = roster.listedJersey(jersey);
      if (std::ranges::find(strangers, stranger) != strangers.end())
        continue;
      strangers.push_back(std::move(stranger));
    }
    members |= 1U << entry;
    onCourt[count++] = static_cast<std::uint8_t>(entry);
  }
  m_state.wereOnCourt[team] |= static_cast<std::uint16_t>(members);
  m_state.onCourt[team] = onCourt;
  m_state.onCourtCount[team] = count;
  m_state.currentLine[team] =
      count == 0 ? std::uint8_t{0} : static_cast<std::uint8_t>(lineEntry(team, members, strangers));
}

// The entry of this set of players: the one it had before, else the next free one, else entry 0 ("other
// lines").
std::size_t Tally::lineEntry(Side team, unsigned members, const std::vector<std::string>& strangers) {
  auto& lines = m_state.lines[team];
  auto& known = m_state.lineMembers[team];
  const auto used = static_cast<std::size_t>(m_state.usedLines[team]);
  const auto listText = [&] {
    if (strangers.empty())
      return m_rosters[team]->listOf(members);
    std::vector<std::string> jerseys = strangers;
    for (int entry = 1; entry <= Roster::kLargestEntry; ++entry) {
      if ((members & (1U << entry)) != 0)
        jerseys.push_back(m_rosters[team]->listedJersey(m_rosters[team]->player(entry)->jersey));
    }
    return Module1::onCourtList(std::move(jerseys));
  };
  std::string text;
  if (!strangers.empty())
    text = listText();
  for (std::size_t entry = 1; entry <= used; ++entry) {
    if (known[entry] == members && (strangers.empty() || lines[entry].list == text))
      return entry;
  }
  if (used + 1 >= GameState::kLineEntries)
    return 0;
  known[used + 1] = static_cast<std::uint16_t>(members);
  lines[used + 1].list = strangers.empty() ? listText() : std::move(text);
  m_state.usedLines[team] = static_cast<int>(used) + 1;
  return used + 1;
}

// Everywhere or nowhere: where one of its counts is full, an event is left out of all, so that the tables of
// players, lines and periods always have equal sums.
void Tally::count(const GameEvent& event, std::size_t eventIndex) {
  const EventKind& kind = *event.kind();
  const Side team = *event.player.team;
  const auto player = static_cast<std::size_t>(m_rosters[team]->entryOf(event.player.jersey));
  const std::size_t line = m_state.currentLine[team];
  const std::size_t row = GameState::periodRow(event.period);
  Counters& ofPlayer = m_state.players[team][player].counters;
  Counters& ofLine = m_state.lines[team][line].counters;
  PeriodEntry& ofPeriod = m_state.periods[team][row];
  const bool isMade = kind.isShot && event.isMade;
  // Of a shot the attempts, which are never fewer than those made.
  const Counter counter = kind.isShot ? kind.attempts : kind.counter;

  if (isFull(ofPlayer[counter], 1))
    return leaveOut(team, event.player.jersey, counterName(counter));
  if (isFull(ofLine[counter], 1))
    return leaveOut(team, line > 0 ? m_state.lines[team][line].list : "IN-", counterName(counter));
  if (kind.isTeamFoul && isFull(ofPeriod.fouls, 1))
    return leaveOut(team, "PERIODE" + std::to_string(row), "PF + TF");
  if (isMade && isFull(ofPeriod.points, kind.points))
    return leaveOut(team, "PERIODE" + std::to_string(row), "PTS");

  add(ofPlayer[counter], 1);
  add(ofLine[counter], 1);
  if (kind.isTeamFoul)
    add(ofPeriod.fouls, 1);
  if (isMade) {
    add(ofPlayer[kind.counter], 1);
    add(ofLine[kind.counter], 1);
    add(ofPeriod.points, kind.points);
    addPoints(team, kind.points);
  }
  if (event.detailsAt > 0)
    countExtras(event);
  if (kind.hasPlace || event.hasPlace)
    m_state.shots.push_back({team, static_cast<std::uint8_t>(player), static_cast<std::uint8_t>(line),
                             kind.points == 3, event.isMade, event.hasPlace, event.x, event.y,
                             static_cast<std::uint32_t>(eventIndex)});
}

// Of whoever is named beside the player; a count that is full stays.
void Tally::countExtras(const GameEvent& event) {
  const bool isFoul = event.code == EventCode::SPF || event.code == EventCode::STF;
  if (!isFoul && event.code != EventCode::SBS)
    return;
  const auto named = event.detail(isFoul ? detail_key::kDrawnBy : detail_key::kShooter);
  const auto other = PlayerReference::read(named.value_or(""));
  if (!other || other->team == event.player.team)
    return;
  const Side team = *other->team;
  PlayerExtras& extras =
      m_state.extras[team][static_cast<std::size_t>(m_rosters[team]->entryOf(other->jersey))];
  if (std::int16_t& count = isFoul ? extras.foulsDrawn : extras.blocksAgainst; !isFull(count, 1))
    add(count, 1);
}

void Tally::countOfTeam(const GameEvent& event) {
  if (!event.player.team)
    return;
  TeamRow& row = m_state.teamRows[*event.player.team];
  std::int16_t* count = nullptr;
  std::int16_t* inPeriod = nullptr;
  switch (event.code) {
  case EventCode::XTO: count = &row.timeOuts; break;
  case EventCode::XOR: count = &row.offensiveRebounds; break;
  case EventCode::XDR: count = &row.defensiveRebounds; break;
  case EventCode::XTV: count = &row.turnovers; break;
  case EventCode::XCF:
    count = &row.benchTechnicals;
    inPeriod = &m_state.periods[*event.player.team][GameState::periodRow(event.period)].benchTechnicals;
    break;
  default: return;
  }
  if (isFull(*count, 1))
    return;
  add(*count, 1);
  if (inPeriod != nullptr)
    add(*inPeriod, 1);
}

void Tally::leaveOut(Side team, std::string_view row, std::string_view count) {
  if (!m_outOfRange)
    m_outOfRange = {team, std::string(row) + ' ' + std::string(count)};
}

void Tally::addPoints(Side team, int points) {
  m_points[team] += points;

  LeadTracker& lead = m_state.lead;
  const int margin = m_points[Side::Visitor] - m_points[Side::Home];
  const LeadState state = margin == 0 ? LeadState::Tied : margin > 0 ? LeadState::Team0 : LeadState::Team1;
  if (state != lead.state) {
    lead.state = state;
    ++lead.times[static_cast<std::size_t>(state)];
  }
}

std::optional<CountOutOfRange> Tally::run(GameState& state, const EventList& events, const Roster& visitors,
                                          const Roster& home) {
  Tally tally(state, visitors, home);
  std::size_t index = 0;
  for (const GameEvent& event : events)
    tally.apply(event, index++);
  return tally.outOfRange();
}

} // namespace hooptab
