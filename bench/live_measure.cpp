#include "live_measure.h"

#include "simulator/GameSimulator.h"
#include "simulator/SampleTeams.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace hooptab {

double milliseconds(BenchClock::duration time) {
  return std::chrono::duration<double, std::milli>(time).count();
}

void printFigures(const std::string& what, std::vector<double> samples) {
  std::ranges::sort(samples);
  std::printf("%-44s median %7.3f ms   99th of %zu %7.3f ms   slowest %7.3f ms\n", what.c_str(),
              samples[samples.size() / 2], samples.size(), samples[samples.size() * 99 / 100 - 1],
              samples.back());
}

std::string liveGameOf(int events, const std::filesystem::path& folder) {
  const auto teams = sampleTeams();
  SimulatedGame game = GameSimulator(teams[0], teams[1], 7).play();
  auto& periods = game.periods;
  const auto played = periods;
  const auto count = [&] {
    std::size_t sum = 0;
    for (const auto& period : periods)
      sum += period.size();
    return static_cast<int>(sum);
  };
  int number = count() + 1;
  for (std::size_t next = 0; count() < events; ++next) {
    periods.emplace_back();
    for (const auto& [key, line] : played[next % played.size()]) {
      if (count() < events)
        periods.back().emplace_back(std::to_string(number++), line);
    }
  }
  game.details.periods = static_cast<int>(periods.size()) + 1;
  game.details.isFinished = false;
  const std::string path = folder / ("live-" + std::to_string(events) + ".GAM");
  std::filesystem::remove(path);
  UnsyncedFileSystem files;
  ProfileStore store(files);
  if (!store.write(path, game.batch()).isOnDisk()) {
    std::fprintf(stderr, "cannot write %s\n", path.c_str());
    std::exit(EXIT_FAILURE);
  }
  return path;
}

std::filesystem::path liveBenchFolder() {
  const char* const chosen = std::getenv("HOOPTAB_BENCH_FOLDER");
  const std::filesystem::path folder = std::filesystem::path(chosen != nullptr ? chosen : ".") / "bench-live";
  std::filesystem::create_directories(folder);
  return folder;
}

bool putFiveOnCourt(LiveGame& live) {
  return live.setOnCourt({0b111110U, 0b111110U});
}

} // namespace hooptab
