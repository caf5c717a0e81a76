// What the benchmarks of live input share: games of any length, a time that stands, and the figures printed.
#pragma once

#include "recording/LiveGame.h"
#include "storage/FileSystem.h"

#include <chrono>
#include <filesystem>
#include <string>
#include <vector>

namespace hooptab {

using BenchClock = std::chrono::steady_clock;
constexpr int kSamples = 100;

[[nodiscard]] double milliseconds(BenchClock::duration time);
void printFigures(const std::string& what, std::vector<double> samples);

// A game of so many events, written into the folder: what the simulator plays, again and again in further
// periods.
[[nodiscard]] std::string liveGameOf(int events, const std::filesystem::path& folder);
[[nodiscard]] std::filesystem::path liveBenchFolder();
[[nodiscard]] bool putFiveOnCourt(LiveGame& live);

// Counts the time that the calls of the system take.
class TimedFileSystem : public FileSystem {
 protected:
  template <class Call>
  auto timed(Call call) {
    const BenchClock::time_point start = BenchClock::now();
    const auto result = call();
    spent += BenchClock::now() - start;
    return result;
  }

 public:
  BenchClock::duration spent{};
  int open(const std::string& path, int flags, unsigned mode) override {
    return timed([&] { return FileSystem::open(path, flags, mode); });
  }
  ssize_t read(int descriptor, char* buffer, std::size_t size) override {
    return timed([&] { return FileSystem::read(descriptor, buffer, size); });
  }
  ssize_t write(int descriptor, const char* bytes, std::size_t size) override {
    return timed([&] { return FileSystem::write(descriptor, bytes, size); });
  }
  int sync(int descriptor) override {
    return timed([&] { return FileSystem::sync(descriptor); });
  }
  int rename(const std::string& from, const std::string& to) override {
    return timed([&] { return FileSystem::rename(from, to); });
  }
  int setMode(int descriptor, unsigned mode) override {
    return timed([&] { return FileSystem::setMode(descriptor, mode); });
  }
  int close(int descriptor) override {
    return timed([&] { return FileSystem::close(descriptor); });
  }
  int remove(const std::string& path) override {
    return timed([&] { return FileSystem::remove(path); });
  }
  bool stamp(const std::string& path, FileStamp& result) override {
    return timed([&] { return FileSystem::stamp(path, result); });
  }
  bool stamp(int descriptor, FileStamp& result) override {
    return timed([&] { return FileSystem::stamp(descriptor, result); });
  }
  bool resolve(const std::string& path, std::string& target) override {
    return timed([&] { return FileSystem::resolve(path, target); });
  }
};

// Takes every write at once and keeps none.
class UnsyncedFileSystem : public TimedFileSystem {
 public:
  int sync(int) override { return 0; }
};

class StandingTime : public TimeSource {
 public:
  std::int64_t seconds() override { return 36'000; }
};

} // namespace hooptab
