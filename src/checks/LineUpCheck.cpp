#include "checks/LineUpCheck.h"

#include "storage/Module1.h"

#include <algorithm>

namespace hooptab {

namespace {

constexpr std::size_t kFive = 5;

} // namespace

void LineUpCheck::enterPeriod(const GameEvent& first) {
  checkTimes();
  m_firstClock = first.clockSeconds;
  m_lastClock = first.clockSeconds;
  for (Court& court : m_courts) {
    court.since = first.clockSeconds;
    court.playersSeconds = 0;
    court.lastCredit.reset();
  }
}

void LineUpCheck::stop(std::size_t event) {
  const GameEvent& stop = m_game.events[event];
  m_stop = event;
  m_lastClock = stop.clockSeconds;
  for (const Side team : kSides) {
    Court& court = m_courts[team];
    court.playersSeconds += court.timed * (court.since - stop.clockSeconds);
    court.since = stop.clockSeconds;
    court.lastCredit = event;
    court.isTold = false;
    if (stop.onCourt(team) != court.list) // most stops change nobody
      readList(team, event);
  }
}

void LineUpCheck::readList(Side team, std::size_t event) {
  Court& court = m_courts[team];
  court.list = m_game.events[event].onCourt(team);
  court.players.clear();
  court.timed = 0;
  std::size_t place = 0;
  std::vector<ListedPlayer> told;
  for (ListedPlayer& listed : playersOfList(court.list, m_game.roster[team])) {
    const auto name = [&](FindingKind kind) {
      m_findings.push_back({.kind = kind, .event = event, .team = team, .jersey = listed.jersey});
    };
    if (std::ranges::find(court.players, listed) == court.players.end()) {
      if (listed.player == nullptr)
        name(FindingKind::OnCourtNotInRoster);
      // Of a list that is too long the first count, and nobody who is in no roster is credited with time.
      court.timed += place < kFive && listed.player != nullptr ? 1 : 0;
      court.players.push_back(std::move(listed));
    } else if (std::ranges::find(told, listed) == told.end()) {
      name(FindingKind::Twice);
      told.push_back(std::move(listed));
    }
    ++place;
  }
}

// It is told at the stop that sent them there, once.
void LineUpCheck::start(std::size_t event) {
  for (const Side team : kSides) {
    Court& court = m_courts[team];
    const std::size_t count = court.players.size();
    if (!isFollowed(team) || count == kFive || court.isTold)
      continue;
    court.isTold = true;
    m_findings.push_back({.kind = count > kFive ? FindingKind::MoreThanFive : FindingKind::FewerThanFive,
                          .event = m_stop.value_or(event),
                          .team = team,
                          .found = std::to_string(count)});
  }
}

bool LineUpCheck::isOnCourt(Side team, const RosterPlayer& player) const {
  return !isFollowed(team) ||
         std::ranges::any_of(m_courts[team].players,
                             [&player](const ListedPlayer& listed) { return listed.player == &player; });
}

// Up to the last stop of the period.
void LineUpCheck::checkTimes() {
  const int wanted = (m_firstClock - m_lastClock) * static_cast<int>(kFive);
  for (const Side team : kSides) {
    const Court& court = m_courts[team];
    if (!court.lastCredit || !isFollowed(team) || court.playersSeconds == wanted)
      continue;
    m_findings.push_back({.kind = FindingKind::OtherTime,
                          .event = *court.lastCredit,
                          .team = team,
                          .found = Module1::clockText(court.playersSeconds),
                          .wanted = Module1::clockText(wanted)});
  }
}

} // namespace hooptab
