// From a click in the live window to the event durable on disk and every counter on the screen, for the
// events behind the 1,500th of a game; and the core's own work for one event of games of several lengths. The
// clicks are the window system's events from the moment they reach the program; the disk is that of
// HOOPTAB_BENCH_FOLDER, the screen that of the display in use.
#include "appearance/Dialogs.h"
#include "live/frmLIVE.h"
#include "simulator/GameSimulator.h"
#include "simulator/SampleTeams.h"
#include "storage/Settings.h"

#include <QApplication>
#include <QTest>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <map>
#include <vector>

using namespace hooptab;
using Clock = std::chrono::steady_clock;

namespace {

constexpr int kSamples = 100;

double milliseconds(Clock::duration time) {
  return std::chrono::duration<double, std::milli>(time).count();
}

// Counts the time that the disk takes.
class TimedFileSystem : public FileSystem {
 private:
  template <class Call>
  auto timed(Call call) {
    const Clock::time_point start = Clock::now();
    const auto result = call();
    spent += Clock::now() - start;
    return result;
  }

 public:
  Clock::duration spent{};
  int open(const std::string& path, int flags, unsigned mode) override {
    return timed([&] { return FileSystem::open(path, flags, mode); });
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
};

// Takes every write at once and keeps none.
class UnsyncedFileSystem : public FileSystem {
 public:
  int sync(int) override { return 0; }
};

class StandingTime : public TimeSource {
 public:
  std::int64_t seconds() override { return 36'000; }
};

void print(const char* what, std::vector<double> samples) {
  std::ranges::sort(samples);
  std::printf("%-44s median %7.3f ms   99th of %zu %7.3f ms   slowest %7.3f ms\n", what,
              samples[samples.size() / 2], samples.size(), samples[samples.size() * 99 / 100 - 1],
              samples.back());
}

// A game of so many events, five of each team on court: what the simulator plays, again and again in further
// periods.
std::string gameOf(int events, const std::filesystem::path& folder) {
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
  cinifile store(files);
  store.Path(path);
  if (!store.write(game.batch())) {
    std::fprintf(stderr, "cannot write %s\n", path.c_str());
    std::exit(EXIT_FAILURE);
  }
  return path;
}

bool putFiveOnCourt(LiveGame& live) {
  return live.setOnCourt({0b111110U, 0b111110U});
}

void measureCore(int events, const std::filesystem::path& folder) {
  UnsyncedFileSystem files;
  cinifile store(files);
  StandingTime time;
  LiveGame live(store, time);
  if (live.open(gameOf(events, folder)) != GameFileProblem::None || !putFiveOnCourt(live))
    std::exit(EXIT_FAILURE);
  std::vector<double> samples;
  for (int i = 0; i < kSamples; ++i) {
    const Clock::time_point start = Clock::now();
    const bool isRecorded = live.recordAction(i % 2, 1 + i % 5, EventCode::SPF);
    samples.push_back(milliseconds(Clock::now() - start));
    if (!isRecorded)
      std::exit(EXIT_FAILURE);
  }
  print(("core, behind event " + std::to_string(events)).c_str(), std::move(samples));
}

// The presses of a game: buttons of all panels, and free throws made and missed.
struct Press {
  QWidget* target;
  Qt::MouseButton button;
};
std::vector<Press> pressesOf(frmLIVE& window) {
  std::vector<Press> presses;
  for (int slot = 0; slot < LiveGame::kSlots; ++slot) {
    const auto press = [&](const char* name, Qt::MouseButton button) {
      const QString objectName = QLatin1String(name) + QStringLiteral("(%1)").arg(slot);
      presses.push_back({window.findChild<QWidget*>(objectName), button});
    };
    for (const char* name : {"cmdBUTDRB", "cmdBUTF", "cmdBUTTO"})
      press(name, Qt::LeftButton);
    press("cmdBUTFT", slot % 2 == 0 ? Qt::LeftButton : Qt::RightButton);
  }
  return presses;
}

void showAll() {
  QApplication::processEvents();
  QApplication::sync(); // the display has drawn what it was sent
}

int measureWindow(int events, const std::filesystem::path& folder) {
  TimedFileSystem files;
  cinifile store(files);
  Texts texts;
  Settings settings(store, folder.string());
  settings.asksRebounds = false;
  QtDialogs dialogs;
  StandingTime time;
  const QString path = QString::fromStdString(gameOf(events, folder));
  {
    LiveGame live(store, time);
    if (live.open(path.toStdString()) != GameFileProblem::None || !putFiveOnCourt(live))
      return EXIT_FAILURE;
  }
  frmLIVE window(store, settings, texts, dialogs, time);
  if (window.open(path) != frmLIVE::Opening::Opened)
    return EXIT_FAILURE;
  window.resize(1366, 650);
  window.show();
  if (!QTest::qWaitForWindowExposed(&window))
    return EXIT_FAILURE;
  showAll();

  std::vector<double> whole;
  std::vector<double> disk;
  const std::vector<Press> presses = pressesOf(window);
  QWindow* handle = window.windowHandle();
  for (std::size_t i = 0; i < kSamples; ++i) {
    const Press& press = presses[i % presses.size()];
    const QPoint place = press.target->mapTo(&window, press.target->rect().center());
    files.spent = {};
    const Clock::time_point start = Clock::now();
    QTest::mousePress(handle, press.button, {}, place);
    showAll();
    whole.push_back(milliseconds(Clock::now() - start));
    disk.push_back(milliseconds(files.spent));
    QTest::mouseRelease(handle, press.button, {}, place);
    QApplication::processEvents();
  }
  Game recorded;
  if (GameFile(store, path.toStdString()).read(recorded) != GameFileProblem::None ||
      recorded.events.size() < static_cast<std::size_t>(events + kSamples)) {
    std::fprintf(stderr, "only %zu events are in the file\n", recorded.events.size());
    return EXIT_FAILURE;
  }
  print(("click to disk and screen, behind event " + std::to_string(events)).c_str(), std::move(whole));
  print("  of this the disk", std::move(disk));
  return EXIT_SUCCESS;
}

} // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  const char* const chosen = std::getenv("HOOPTAB_BENCH_FOLDER");
  const std::filesystem::path folder = std::filesystem::path(chosen != nullptr ? chosen : ".") / "bench-live";
  std::filesystem::create_directories(folder);
  for (const int events : {500, 1500, 5000, 20000})
    measureCore(events, folder);
  return measureWindow(1500, folder);
}
