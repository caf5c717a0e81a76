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
  list();
}

void GameFiles::list() {
  m_files.clear();
  m_listings.clear();
  m_faults.clear();
  for (const std::string& path : m_paths) {
    std::error_code error;
    std::vector<std::string> found = {path};
    if (std::filesystem::is_directory(path, error))
      found = findGames(m_system, {path, false}).paths;
    for (const std::string& file : found) {
      GameFileProblem problem = GameFileProblem::None;
      const std::optional<WebGame::Moment> moment = read(file, problem);
      if (!moment) {
        m_faults.push_back({file, problem});
        continue;
      }
      m_files.push_back({file, freeName(file)});
      m_listings.push_back(webListing(m_files.back().name, *moment->game));
    }
  }
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
  const auto take = [&] {
    for (const File& file : m_files) {
      if (std::ranges::find(changed, file.path) != changed.end() &&
          std::ranges::find(names, file.name) == names.end())
        names.push_back(file.name);
    }
  };
  take(); // those that go
  list();
  take();
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
