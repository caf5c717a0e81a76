#include "Meaning.h"

#include "game/Side.h"
#include "storage/Module1.h"
#include "tools/replay/Comparison.h"

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

namespace hooptab {

namespace {

constexpr double kSamePlace = 8; // court units: beside a line the nearest pixel that counts lies so far off

struct Deed {
  const GameEvent* event;
  OnCourt onCourt; // at that time
};

struct Course {
  std::vector<Deed> deeds;
  OnCourt onCourt = {}; // in the end
  bool isRunning = false;
};

Course courseOf(const Game& game) {
  const Rosters rosters{game.roster[Side::Visitor], game.roster[Side::Home]};
  Course course;
  for (const GameEvent& event : game.events) {
    if (!event.isUnderstood || event.isDeleted)
      continue;
    if (event.isClock())
      course.isRunning = event.code == EventCode::DEPART;
    else
      course.deeds.push_back({&event, course.onCourt});
    if (const auto lists = onCourtOf(event, rosters))
      course.onCourt = *lists;
  }
  return course;
}

bool isSame(const GameEvent& found, const GameEvent& wanted) {
  const bool isNear =
      !found.hasPlace || !wanted.hasPlace || std::hypot(found.x - wanted.x, found.y - wanted.y) <= kSamePlace;
  return found.code == wanted.code && found.period == wanted.period &&
         found.clockSeconds == wanted.clockSeconds && found.isMade == wanted.isMade &&
         found.player.team == wanted.player.team && found.player.jersey == wanted.player.jersey && isNear;
}

std::string inWords(const GameEvent& event) {
  return "period " + std::to_string(event.period) + " " + std::string(event.line);
}

std::string inWords(const std::vector<Deed>& deeds, std::size_t index) {
  return index < deeds.size() ? inWords(*deeds[index].event) : "nothing";
}

std::string inWords(const OnCourt& onCourt, const Game& game) {
  return listsText(onCourt, Rosters{game.roster[Side::Visitor], game.roster[Side::Home]});
}

// As if the clock were stopped now: seconds are only counted then.
Game stopped(const Game& game, const Course& course, const Meaning::Moment& now) {
  Game copy = game;
  if (course.isRunning || now.isRunning) // the original may tell of the start behind a substitution later
    copy.events.appendOwned(
        now.period, "1",
        Module1::clockText(now.clock) +
            stopText(course.onCourt, Rosters{game.roster[Side::Visitor], game.roster[Side::Home]}));
  return copy;
}

} // namespace

Meaning::Meaning(const Game& original) {
  m_meant.details = original.details;
  for (const Side team : kSides)
    m_meant.roster[team] = original.roster[team];
}

void Meaning::add(const GameEvent& event) {
  m_meant.events.appendOwned(event.period, event.key, event.line);
  m_events += event.isClock() ? 0 : 1;
}

void Meaning::putOffLast(int clock) {
  const EventList before = std::exchange(m_meant.events, EventList());
  for (std::size_t index = 0; index < before.size(); ++index) {
    const GameEvent& event = before[index];
    std::string line(event.line);
    if (index + 1 == before.size())
      line = Module1::clockText(clock) + line.substr(line.find(','));
    m_meant.events.appendOwned(event.period, event.key, line);
  }
}

OnCourt Meaning::onCourt() const {
  return courseOf(m_meant).onCourt;
}

Meaning::Difference Meaning::difference(const Game& recorded, const Moment& now) const {
  using Kind = Difference::Kind;
  const Course found = courseOf(recorded);
  const Course meant = courseOf(m_meant);
  for (std::size_t index = 0; index < std::max(found.deeds.size(), meant.deeds.size()); ++index) {
    const std::string words =
        "meant " + inWords(meant.deeds, index) + ", came " + inWords(found.deeds, index);
    if (index >= found.deeds.size())
      return {Kind::Missing, words, meant.deeds[index].event};
    if (index >= meant.deeds.size() || !isSame(*found.deeds[index].event, *meant.deeds[index].event))
      return {Kind::Wrong, words};
    const OnCourt& lists = found.deeds[index].onCourt;
    if (lists != meant.deeds[index].onCourt)
      return {Kind::Wrong, "at " + inWords(meant.deeds, index) + " on court " + inWords(lists, recorded) +
                               " instead of " + inWords(meant.deeds[index].onCourt, recorded)};
  }
  if (found.isRunning != now.isRunning)
    return {Kind::Clock,
            found.isRunning ? "the clock runs and should stand" : "the clock stands and should run"};
  if (found.onCourt != meant.onCourt)
    return {Kind::Lists, "on court " + inWords(found.onCourt, recorded) + " instead of " +
                             inWords(meant.onCourt, recorded)};
  const std::vector<std::string> counts =
      differences(stopped(recorded, found, now), stopped(m_meant, meant, now));
  if (counts.empty())
    return {};
  return {Kind::Seconds, counts.front() + " (" + std::to_string(counts.size()) + " counts)"};
}

} // namespace hooptab
