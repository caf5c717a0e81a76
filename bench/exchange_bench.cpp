// One game of another system, play-by-play and box score, from its two files to the text of a game of ours,
// beside the floor (reading their bytes) and parsing them alone. HOOPTAB_BENCH_EXCHANGE names the game, as
// PLACE/ID of ID-playbyplay.json and ID-boxscore.json; without it, a simulated game is written in that form
// first.
#include "exchange/GameBuilder.h"
#include "exchange/GameReading.h"
#include "game/Tally.h"
#include "game_to_measure.h"
#include "livedata/JsonDocument.h"
#include "livedata/NbaLiveReader.h"
#include "livedata/NbaLiveWriter.h"
#include "storage/FileSystem.h"
#include "storage/ProfileStore.h"

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>

using namespace hooptab;

namespace {

std::string bytesOf(const std::string& path) {
  FileSystem files;
  std::string bytes;
  FileStamp stamp;
  if (readWholeFile(files, path, bytes, stamp) != ReadOutcome::Read)
    throw std::runtime_error("cannot read " + path);
  return bytes;
}

std::string simulatedPair() {
  const ProfileText text(bytesOf(gameToMeasure()));
  CountedGame counted;
  readGame(text, counted.game);
  if (Tally::run(counted.state, counted.game.events, counted.game.roster[Side::Visitor],
                 counted.game.roster[Side::Home]))
    throw std::runtime_error("count out of range");
  const ForeignGame game = foreignGameOf(counted, text);
  const std::string path = (std::filesystem::temp_directory_path() / "hooptab-bench").string();
  std::ofstream(path + "-playbyplay.json") << writeNbaLivePlays(game);
  std::ofstream(path + "-boxscore.json") << writeNbaLiveBox(game);
  return path;
}

const std::string& pairPath() {
  static const std::string path = [] {
    const char* const chosen = std::getenv("HOOPTAB_BENCH_EXCHANGE");
    return chosen != nullptr ? std::string(chosen) : simulatedPair();
  }();
  return path;
}
std::string playsBytes() {
  return bytesOf(pairPath() + "-playbyplay.json");
}
std::string boxBytes() {
  return bytesOf(pairPath() + "-boxscore.json");
}

void countGames(benchmark::State& state) {
  constexpr double kSecondsPerMinute = 60;
  state.counters["games/min"] = benchmark::Counter(
      kSecondsPerMinute * static_cast<double>(state.iterations()), benchmark::Counter::kIsRate);
}

void readBothFiles(benchmark::State& state) {
  for (auto _ : state) {
    benchmark::DoNotOptimize(playsBytes());
    benchmark::DoNotOptimize(boxBytes());
  }
  countGames(state);
}
BENCHMARK(readBothFiles)->Unit(benchmark::kMillisecond);

void parseBothFiles(benchmark::State& state) {
  for (auto _ : state) {
    benchmark::DoNotOptimize(parseJson(playsBytes()));
    benchmark::DoNotOptimize(parseJson(boxBytes()));
  }
  countGames(state);
}
BENCHMARK(parseBothFiles)->Unit(benchmark::kMillisecond);

void readAndBuildGame(benchmark::State& state) {
  const std::string id(32, 'a');
  std::size_t events = 0;
  for (auto _ : state) {
    const Json box = parseJson(boxBytes());
    const ForeignGame game = readNbaLive(parseJson(playsBytes()), &box);
    const BuiltGame built = buildGame(game, id);
    benchmark::DoNotOptimize(built.text.bytes().data());
    events = game.events.size();
  }
  state.counters["events"] = static_cast<double>(events);
  countGames(state);
}
BENCHMARK(readAndBuildGame)->Unit(benchmark::kMillisecond);

} // namespace
