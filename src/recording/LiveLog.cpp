#include "recording/LiveLog.h"

#include "game/WallClock.h"
#include "storage/Module1.h"

#include <algorithm>

namespace hooptab {

namespace {

// New events behind all others. What recording does, hundreds of times a game: counted one by one.
bool isAppending(const std::vector<EventChange>& steps, const EventList& events) {
  int period = events.isEmpty() ? 0 : events[events.size() - 1].period;
  return std::ranges::all_of(steps, [&](const EventChange& step) {
    const bool isBehind = step.kind == EventChange::Kind::Add && step.before.empty() && step.period >= period;
    period = step.period;
    return isBehind;
  });
}

} // namespace

GameFileProblem LiveLog::open(const std::string& path) {
  GameFile file(m_store, path);
  Game game;
  if (const GameFileProblem problem = file.read(game); problem != GameFileProblem::None)
    return problem;
  m_nextNumber = nextNumberOf(file.text());
  m_game = std::move(game);
  // What another game still had to write is its own affair, and was asked about.
  m_disk.open(path, file.text());
  m_tally.emplace(m_state, m_game.roster[Side::Visitor], m_game.roster[Side::Home]);
  countAll();
  m_news = {};
  m_news.isOpened = true;
  return GameFileProblem::None;
}

bool LiveLog::change(const std::vector<EventChange>& steps, std::optional<std::int64_t> wallClock) {
  const bool isBehind = isAppending(steps, m_game.events);
  EventList changed = m_game.events;
  if (!std::ranges::all_of(steps, [&](const EventChange& step) { return changed.apply(step); }))
    return false;
  note(steps);
  const std::size_t before = m_game.events.size();
  m_game.events = std::move(changed);
  GameOnDisk::Sections more;
  if (!isBehind)
    more[kAcceptedSection] = forgetAccepted(steps);
  if (m_game.details.id.empty()) { // of a game that an older program made
    m_game.details.id = newGameId();
    more[kDetailsSection] = {{"IDPARTIE", m_game.details.id}};
  }
  if (wallClock)
    more[kWallClockSection] = timesOf(steps, *wallClock);
  m_disk.change(steps, m_game.events, more);
  if (isBehind)
    count(before);
  else
    countAll();
  return true;
}

// Before the steps are taken: what was there tells what becomes of it.
void LiveLog::note(const std::vector<EventChange>& steps) {
  for (const EventChange& step : steps) {
    const GameEvent* before = m_game.events.find(step.period, step.key);
    const bool goes = step.kind == EventChange::Kind::Replace && step.line.starts_with('E') &&
                      before != nullptr && !before->whole().starts_with('E');
    (step.kind == EventChange::Kind::Add ? m_news.added
     : goes                              ? m_news.deleted
                                         : m_news.changed)
        .push_back({step.period, step.key});
  }
}

void LiveLog::setDetails(const std::vector<std::pair<std::string, std::string>>& keysAndValues) {
  for (const auto& [key, value] : keysAndValues)
    setDetail(m_game.details, key, value);
  m_news.details = true;
  m_disk.set(kDetailsSection, keysAndValues, m_game.events);
}

void LiveLog::addPlayer(Side team, RosterPlayer player) {
  const GameOnDisk::Values value = {{player.jersey, playerValue(player)}};
  m_game.roster[team].add(std::move(player));
  m_disk.set(rosterSection(team), value, m_game.events);
  countAll();
  m_news.hasOtherCounts = true;
}

void LiveLog::accept(int event, const std::vector<int>& findings) {
  std::string value;
  for (const int finding : findings)
    value += (value.empty() ? "" : ",") + std::to_string(finding);
  m_game.accepted[event] = findings;
  m_news.details = true;
  m_disk.set(kAcceptedSection, {{std::to_string(event), value}}, m_game.events);
}

GameOnDisk::Values LiveLog::forgetAccepted(const std::vector<EventChange>& steps) {
  GameOnDisk::Values gone;
  for (const EventChange& step : steps) {
    const auto accepted = m_game.accepted.find(Module1::wholeNumber(step.key));
    if (accepted == m_game.accepted.end() || accepted->second.empty())
      continue;
    accepted->second.clear();
    gone.emplace_back(std::to_string(accepted->first), std::string());
  }
  return gone;
}

GameOnDisk::Values LiveLog::timesOf(const std::vector<EventChange>& steps, std::int64_t wallClock) const {
  GameOnDisk::Values times = {{std::string(kWallClockOwner), m_game.details.id}};
  for (const EventChange& step : steps) {
    if (step.kind == EventChange::Kind::Add)
      times.emplace_back(step.key, std::to_string(wallClock));
  }
  return times;
}

ForeignHands LiveLog::takeForeignHands() {
  ForeignHands hands;
  if (m_disk.isOnDisk())
    hands = m_disk.takeForeignHands();
  if (!hands.isTouched)
    return hands;
  Game theirs;
  readGame(m_disk.text(), theirs);
  m_game.details = std::move(theirs.details);
  m_game.accepted = std::move(theirs.accepted);
  for (const Side team : kSides)
    m_game.roster[team] = std::move(theirs.roster[team]);
  m_game.events = mergeGame(m_game.events, m_disk.text(), m_disk.text()).events;
  for (const GameEvent& event : m_game.events)
    m_nextNumber = std::max(m_nextNumber, Module1::leadingNumber(event.key) + 1);
  m_tally.emplace(m_state, m_game.roster[Side::Visitor], m_game.roster[Side::Home]);
  countAll();
  m_news.hasOtherCounts = true;
  m_news.details = true;
  return hands;
}

void LiveLog::count(std::size_t from) {
  for (; from < m_game.events.size(); ++from)
    m_tally->apply(m_game.events[from], from);
}

void LiveLog::countAll() {
  m_tally->clear();
  count(0);
}

std::string LiveLog::difference() const {
  GameState fresh;
  (void)Tally::run(fresh, m_game.events, m_game.roster[Side::Visitor], m_game.roster[Side::Home]);
  std::string found;
  const auto compare = [&found](const std::string& what, const auto& left, const auto& right) {
    if (!(left == right))
      found += (found.empty() ? "" : ", ") + what;
  };
  for (const Side team : kSides) {
    const std::string side = "team " + std::to_string(numberOf(team)) + " ";
    const auto compareEntries = [&](const std::string& what, const auto& left, const auto& right) {
      for (std::size_t entry = 0; entry < left.size(); ++entry) {
        const std::string name = side + what + std::to_string(entry);
        compare(name + " counts", left[entry].counters, right[entry].counters);
        compare(name + " seconds", left[entry].seconds, right[entry].seconds);
      }
    };
    compareEntries("player ", fresh.players[team], m_state.players[team]);
    compareEntries("line ", fresh.lines[team], m_state.lines[team]);
    compare(side + "points", fresh.points(team), m_state.points(team));
    for (std::size_t period = 0; period < fresh.periods[team].size(); ++period)
      compare(side + "fouls of period " + std::to_string(period), fresh.periods[team][period].fouls,
              m_state.periods[team][period].fouls);
  }
  compare("seconds in lead", fresh.lead.seconds, m_state.lead.seconds);
  compare("changes of lead", fresh.lead.times, m_state.lead.times);
  return found;
}

} // namespace hooptab
