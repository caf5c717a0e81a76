#include "recording/LiveLog.h"

#include "storage/Module1.h"
#include "storage/cinifile.h"

#include <algorithm>

namespace hooptab {

namespace {

// What every reader gets of a line.
std::string_view readable(const std::string& line) {
  return std::string_view(line).substr(0, cinifile::kLongestValue);
}

// New events of the last period, or of one behind it. What recording does, hundreds of times a game, so it
// takes no copy of all lines.
bool isAppending(const std::vector<EventChange>& steps, const EventLines& lines) {
  int period = lines.empty() ? 0 : lines.rbegin()->first;
  std::vector<std::string_view> keys;
  for (const EventChange& step : steps) {
    if (step.kind != EventChange::Kind::Add || !step.before.empty() || step.period < period ||
        findLine(lines, step.period, step.key) != nullptr || std::ranges::find(keys, step.key) != keys.end())
      return false;
    period = step.period;
    keys.push_back(step.key);
  }
  return true;
}

} // namespace

GameFileProblem LiveLog::open(const std::string& path) {
  GameFile file(m_store, path);
  Game game;
  if (const GameFileProblem problem = file.read(game); problem != GameFileProblem::None)
    return problem;
  EventLines lines;
  if (const GameFileProblem problem = file.readLines(lines); problem != GameFileProblem::None)
    return problem;
  m_nextNumber = file.nextNumber();
  m_game = std::move(game);
  m_lines = std::move(lines);
  m_disk.open(path,
              file.text()); // what another game still had to write is its own affair, and was asked about
  m_tally.emplace(m_state, m_game.roster[0], m_game.roster[1]);
  countAll();
  m_news = {};
  m_news.isOpened = true;
  return GameFileProblem::None;
}

bool LiveLog::change(const std::vector<EventChange>& steps) {
  return isAppending(steps, m_lines) ? append(steps) : rewrite(steps);
}

// Before the steps are taken: what was there tells what becomes of it.
void LiveLog::note(const std::vector<EventChange>& steps) {
  const auto isDeleted = [](const std::string& line) { return line.starts_with('E'); };
  for (const EventChange& step : steps) {
    const std::string* before = findLine(m_lines, step.period, step.key);
    const bool goes = step.kind == EventChange::Kind::Replace && isDeleted(step.line) && before != nullptr &&
                      !isDeleted(*before);
    (step.kind == EventChange::Kind::Add ? m_news.added
     : goes                              ? m_news.deleted
                                         : m_news.changed)
        .push_back({step.period, step.key});
  }
}

bool LiveLog::append(const std::vector<EventChange>& steps) {
  note(steps);
  for (const EventChange& step : steps) {
    m_lines[step.period].emplace_back(step.key, step.line);
    m_game.events.appendOwned(step.period, step.key, readable(step.line));
    m_tally->apply(m_game.events[m_game.events.size() - 1], m_game.events.size() - 1);
  }
  m_disk.change(steps, m_lines);
  return true;
}

bool LiveLog::rewrite(const std::vector<EventChange>& steps) {
  EventLines changed = m_lines;
  if (!std::ranges::all_of(steps, [&](const EventChange& step) { return applyChange(step, changed); }))
    return false;
  note(steps);
  m_lines = std::move(changed);
  m_disk.change(steps, m_lines, forgetAccepted(steps));
  readEvents();
  countAll();
  return true;
}

void LiveLog::setDetails(const std::vector<std::pair<std::string, std::string>>& keysAndValues) {
  for (const auto& [key, value] : keysAndValues)
    setDetail(m_game.details, key, value);
  m_news.details = true;
  m_disk.set(kDetailsSection, keysAndValues, m_lines);
}

void LiveLog::addPlayer(int team, RosterPlayer player) {
  const GameOnDisk::Values value = {{player.jersey, playerValue(player)}};
  m_game.roster[team].add(std::move(player));
  m_disk.set(rosterSection(team), value, m_lines);
  countAll();
  m_news.hasOtherCounts = true;
}

void LiveLog::accept(int event, const std::vector<int>& findings) {
  std::string value;
  for (const int finding : findings)
    value += (value.empty() ? "" : ",") + std::to_string(finding);
  m_game.accepted[event] = findings;
  m_news.details = true;
  m_disk.set(kAcceptedSection, {{std::to_string(event), value}}, m_lines);
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
  for (std::size_t team = 0; team < 2; ++team)
    m_game.roster[team] = std::move(theirs.roster[team]);
  m_lines = mergeGame(m_lines, m_disk.text(), m_disk.text()).lines;
  std::erase_if(m_lines, [](const auto& period) { return period.second.empty(); });
  for (const auto& [period, lines] : m_lines) {
    for (const auto& [key, line] : lines)
      m_nextNumber = std::max(m_nextNumber, Module1::leadingNumber(key) + 1);
  }
  readEvents();
  m_tally.emplace(m_state, m_game.roster[0], m_game.roster[1]);
  countAll();
  m_news.hasOtherCounts = true;
  m_news.details = true;
  return hands;
}

void LiveLog::readEvents() {
  EventList events;
  for (const auto& [period, lines] : m_lines) {
    for (const auto& [key, line] : lines)
      events.appendOwned(period, key, readable(line));
  }
  m_game.events = std::move(events);
}

void LiveLog::countAll() {
  m_tally->clear();
  std::size_t index = 0;
  for (const GameEvent& event : m_game.events)
    m_tally->apply(event, index++);
}

std::string LiveLog::difference() const {
  GameState fresh;
  (void)Tally::run(fresh, m_game.events, m_game.roster[0], m_game.roster[1]);
  std::string found;
  const auto compare = [&found](const std::string& what, const auto& left, const auto& right) {
    if (!(left == right))
      found += (found.empty() ? "" : ", ") + what;
  };
  for (std::size_t team = 0; team < 2; ++team) {
    const std::string side = "team " + std::to_string(team) + " ";
    const auto compareEntries = [&](const std::string& what, const auto& left, const auto& right) {
      for (std::size_t entry = 0; entry < left.size(); ++entry) {
        const std::string name = side + what + std::to_string(entry);
        compare(name + " counts", left[entry].counters, right[entry].counters);
        compare(name + " seconds", left[entry].seconds, right[entry].seconds);
      }
    };
    compareEntries("player ", fresh.players[team], m_state.players[team]);
    compareEntries("line ", fresh.lines[team], m_state.lines[team]);
    compare(side + "points", fresh.points(static_cast<int>(team)), m_state.points(static_cast<int>(team)));
    for (std::size_t period = 0; period < fresh.periods[team].size(); ++period)
      compare(side + "fouls of period " + std::to_string(period), fresh.periods[team][period].fouls,
              m_state.periods[team][period].fouls);
  }
  compare("seconds in lead", fresh.lead.seconds, m_state.lead.seconds);
  compare("changes of lead", fresh.lead.times, m_state.lead.times);
  return found;
}

} // namespace hooptab
