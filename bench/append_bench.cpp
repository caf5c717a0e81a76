// Appending one event durably, beside the plain system calls that any such append must make: write a
// temporary file of that size, fsync it, rename it, fsync the folder.
#include "game/GameFile.h"
#include "game_to_measure.h"

#include <benchmark/benchmark.h>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <unistd.h>

using namespace hooptab;

namespace {

// A folder beside the benchmark (HOOPTAB_BENCH_FOLDER), on the disk that is to be measured.
std::filesystem::path folder() {
  const char* const chosen = std::getenv("HOOPTAB_BENCH_FOLDER");
  const std::filesystem::path path = std::filesystem::path(chosen != nullptr ? chosen : ".") / "bench-append";
  std::filesystem::create_directories(path);
  return path;
}

void plainSystemCalls(benchmark::State& state) {
  std::ifstream game(gameToMeasure(), std::ios::binary);
  const std::string bytes{std::istreambuf_iterator<char>(game), {}};
  const std::string target = folder() / "floor.GAM";
  const std::string temporary = folder() / "floor.new";
  for (auto _ : state) {
    const int file = ::open(temporary.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
    bool works = file >= 0 && ::write(file, bytes.data(), bytes.size()) == static_cast<ssize_t>(bytes.size());
    works =
        works && ::fsync(file) == 0 && ::close(file) == 0 && ::rename(temporary.c_str(), target.c_str()) == 0;
    const int parent = ::open(folder().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    works = works && ::fsync(parent) == 0 && ::close(parent) == 0;
    if (!works)
      state.SkipWithError("a system call failed");
  }
}
BENCHMARK(plainSystemCalls)->UseRealTime()->Unit(benchmark::kMicrosecond);

void appendEvent(benchmark::State& state) {
  const std::filesystem::path path = folder() / "append.GAM";
  std::filesystem::copy_file(gameToMeasure(), path, std::filesystem::copy_options::overwrite_existing);
  FileSystem files;
  ProfileStore store(files);
  GameFile file(store, path.string());
  const int number = file.nextNumber();
  int clock = 0;
  for (auto _ : state) {
    // The same number again and again, with another clock, keeps the file at its size.
    clock = (clock + 1) % 600;
    if (file.append(4, clock, number, {",SPF,0-1"}) != GameFileProblem::None)
      state.SkipWithError("the event was not written");
  }
}
BENCHMARK(appendEvent)->UseRealTime()->Unit(benchmark::kMicrosecond);

} // namespace
