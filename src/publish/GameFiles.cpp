#include "publish/GameFiles.h"

#include "catalogue/GameFinder.h"
#include "game/WallClock.h"
#include "publish/WebSite.h"
#include "recording/EventEdit.h"

#include <algorithm>
#include <filesystem>

namespace hooptab {

namespace {

constexpr std::int64_t kMilliseconds = 1000; // in a second

// The clock of a game that somebody else records goes on since its last event, if anybody knows when that
// was. One that would have run out meanwhile was left, and stands.
void followClock(WebGame::Moment& moment, RunningGame& game, const ProfileText& text, std::int64_t now) {
  const Game& played = game.counted.game;
  if (played.details.isFinished) {
    game.phase = LiveGame::Phase::Finished;
    return;
  }
  game.phase = LiveGame::Phase::Stopped;
  if (played.details.minutesPerPeriod <= 0 || !isRunningBefore(played.events, game.period, {}))
    return;
  const std::map<int, std::int64_t> clock = readWallClock(text, played.details.id);
  const GameEvent* last = nullptr;
  for (const GameEvent& event : played.events) {
    if (event.isUnderstood && !event.isDeleted)
      last = &event;
  }
  const auto at = last == nullptr ? clock.end() : clock.find(last->number);
  if (at != clock.end() && now - at->second > game.clockSeconds * kMilliseconds)
    return;
  game.phase = LiveGame::Phase::Running;
  if (at == clock.end())
    return;
  moment.at = at->second;
  moment.isClockKnown = true;
}

} // namespace

GameFiles::GameFiles(std::vector<std::string> paths, std::function<std::int64_t()> now)
    : m_paths(std::move(paths)), m_now(std::move(now)) {
  for (const std::string& path : m_paths) {
    std::error_code error;
    if (!std::filesystem::is_directory(path, error)) {
      take(path);
      continue;
    }
    for (const std::string& file : findGames(m_system, {path, false}).paths)
      take(file);
  }
  sortListings();
}

// A file that is known keeps its name.
void GameFiles::take(const std::string& path) {
  GameFileProblem problem = GameFileProblem::None;
  const std::optional<WebGame::Moment> moment = read(path, problem);
  std::erase_if(m_faults, [&path](const Fault& fault) { return fault.path == path; });
  if (!moment) {
    m_faults.push_back({path, problem});
    return;
  }
  const auto known = std::ranges::find(m_files, path, &File::path);
  const std::string name = known == m_files.end() ? freeName(path) : known->name;
  if (known == m_files.end())
    m_files.push_back({path, name});
  std::erase_if(m_listings, [&name](const WebListing& listing) { return listing.name == name; });
  m_listings.push_back(webListing(name, *moment->game));
}

void GameFiles::drop(const std::string& path) {
  const auto known = std::ranges::find(m_files, path, &File::path);
  if (known == m_files.end())
    return;
  std::erase_if(m_listings, [&known](const WebListing& listing) { return listing.name == known->name; });
  m_files.erase(known);
}

bool GameFiles::isServed(const std::string& path) const {
  const std::string folder = path.substr(0, path.find_last_of('/') + 1);
  const std::string ending = path.substr(std::min(path.rfind('.'), path.size()));
  const bool isGame =
      ending.size() == 4 && std::ranges::equal(ending, std::string_view(".gam"), [](char one, char other) {
        return (one | 0x20) == other || one == other;
      });
  return std::ranges::any_of(m_paths, [&](const std::string& served) {
    return served == path || (isGame && (served == folder || served + '/' == folder));
  });
}

void GameFiles::sortListings() {
  std::ranges::stable_sort(m_listings, std::ranges::greater(), &WebListing::date);
}

std::string GameFiles::freeName(const std::string& path) const {
  std::string name = webName(path.substr(path.rfind('/') + 1));
  if (name.empty())
    name = "game";
  std::string free = name;
  for (int copy = 2; std::ranges::find(m_files, free, &File::name) != m_files.end(); ++copy)
    free = name + '-' + std::to_string(copy);
  return free;
}

std::vector<std::string> GameFiles::look(const std::vector<std::string>& changed) {
  std::vector<std::string> names;
  const auto note = [&](const std::string& path) {
    const auto known = std::ranges::find(m_files, path, &File::path);
    if (known != m_files.end() && std::ranges::find(names, known->name) == names.end())
      names.push_back(known->name);
  };
  for (const std::string& path : changed) {
    if (!isServed(path))
      continue;
    note(path);
    std::error_code error;
    if (std::filesystem::exists(path, error))
      take(path);
    else
      drop(path);
    note(path);
  }
  sortListings();
  return names;
}

std::optional<WebGame::Moment> GameFiles::load(std::string_view name) {
  const auto found = std::ranges::find(m_files, name, &File::name);
  GameFileProblem problem = GameFileProblem::None;
  return found == m_files.end() ? std::nullopt : read(found->path, problem);
}

std::optional<WebGame::Moment> GameFiles::read(const std::string& path, GameFileProblem& problem) {
  LiveGame live(m_store, m_time);
  problem = live.open(path, LiveGame::Access::Reading);
  if (problem != GameFileProblem::None)
    return std::nullopt;
  RunningGame game = RunningGame::of(live);
  WebGame::Moment moment;
  moment.at = m_now();
  followClock(moment, game, m_store.read(path).text, moment.at);
  moment.game = std::make_shared<const RunningGame>(std::move(game));
  return moment;
}

} // namespace hooptab
