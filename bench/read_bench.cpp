// Reading and tallying one real-sized game from its file, beside the floor (reading its bytes) and two
// well-known parsers that only split the same file into keys and values.
#include "game/GameFile.h"
#include "game/Tally.h"
#include "game_to_measure.h"

#include <benchmark/benchmark.h>

#ifdef HOOPTAB_HAS_INIH
#include <ini.h>
#endif
#ifdef HOOPTAB_HAS_GLIB
#include <glib.h>
#endif

using namespace hooptab;

namespace {

const std::string& gamePath() {
  static const std::string path = gameToMeasure();
  return path;
}

void readBytes(benchmark::State& state) {
  FileSystem files;
  for (auto _ : state) {
    std::string bytes;
    FileStamp stamp;
    if (readWholeFile(files, gamePath(), bytes, stamp) != ReadOutcome::Read)
      state.SkipWithError("cannot read the game");
    benchmark::DoNotOptimize(bytes.data());
  }
}
BENCHMARK(readBytes);

// A store of its own each time, so that no copy kept from before helps.
void readAndTally(benchmark::State& state) {
  FileSystem files;
  GameState counters;
  int points = 0;
  for (auto _ : state) {
    ProfileStore store(files);
    Game game;
    if (GameFile(store, gamePath()).read(game) != GameFileProblem::None)
      state.SkipWithError("cannot read the game");
    if (Tally::run(counters, game.events, game.roster[Side::Visitor], game.roster[Side::Home]))
      state.SkipWithError("count out of range");
    points = counters.points(Side::Visitor) + counters.points(Side::Home);
  }
  state.counters["points"] = points;
}
BENCHMARK(readAndTally);

void tallyAlone(benchmark::State& state) {
  FileSystem files;
  ProfileStore store(files);
  Game game;
  if (GameFile(store, gamePath()).read(game) != GameFileProblem::None)
    state.SkipWithError("cannot read the game");
  GameState counters;
  for (auto _ : state)
    benchmark::DoNotOptimize(
        Tally::run(counters, game.events, game.roster[Side::Visitor], game.roster[Side::Home]));
  state.counters["events"] = static_cast<double>(game.events.size());
}
BENCHMARK(tallyAlone);

#ifdef HOOPTAB_HAS_INIH
void inihSplits(benchmark::State& state) {
  for (auto _ : state) {
    std::size_t keys = 0;
    const auto count = [](void* user, const char*, const char*, const char*) {
      ++*static_cast<std::size_t*>(user);
      return 1;
    };
    ini_parse(gamePath().c_str(), count, &keys);
    benchmark::DoNotOptimize(keys);
  }
}
BENCHMARK(inihSplits);
#endif

#ifdef HOOPTAB_HAS_GLIB
void gKeyFileParses(benchmark::State& state) {
  for (auto _ : state) {
    GKeyFile* const file = g_key_file_new();
    if (g_key_file_load_from_file(file, gamePath().c_str(), G_KEY_FILE_NONE, nullptr) == 0)
      state.SkipWithError("GKeyFile cannot read the game");
    g_key_file_free(file);
  }
}
BENCHMARK(gKeyFileParses);
#endif

} // namespace
