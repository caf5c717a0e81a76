#include "game_to_measure.h"

#include "simulator/GameSimulator.h"
#include "simulator/SampleTeams.h"
#include "storage/ProfileStore.h"

#include <cstdlib>
#include <filesystem>
#include <stdexcept>

namespace hooptab {

std::string gameToMeasure() {
  if (const char* const chosen = std::getenv("HOOPTAB_BENCH_GAME"))
    return chosen;
  const std::string path = (std::filesystem::temp_directory_path() / "hooptab-bench.GAM").string();
  const auto teams = sampleTeams();
  const SimulatedGame game = GameSimulator(teams[0], teams[1], 7).play();
  std::filesystem::remove(path);
  FileSystem files;
  ProfileStore store(files);
  if (!store.write(path, game.batch()).isOnDisk())
    throw std::runtime_error("cannot write " + path);
  return path;
}

} // namespace hooptab
