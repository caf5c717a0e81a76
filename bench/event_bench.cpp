// The core's own work for one event, in games of several lengths: counted, written, kept for being taken
// back; and what is computed anew to show who plays well together, and to tell the bench. The disk takes
// every write at once (HOOPTAB_BENCH_FOLDER chooses it), and its share is taken out.
#include "live_measure.h"

#include "assistant/BenchFigures.h"

#include <cstdlib>

using namespace hooptab;

namespace {

void measureCore(int events, const std::filesystem::path& folder) {
  UnsyncedFileSystem files;
  ProfileStore store(files);
  StandingTime time;
  LiveGame live(store, time);
  if (live.open(liveGameOf(events, folder)) != GameFileProblem::None || !putFiveOnCourt(live))
    std::exit(EXIT_FAILURE);
  std::vector<double> whole;
  std::vector<double> own; // without the calls of the system
  std::vector<double> fives;
  std::vector<double> bench;
  std::vector<double> handed;
  const Texts texts;
  for (int i = 0; i < kSamples; ++i) {
    files.spent = {};
    const BenchClock::time_point start = BenchClock::now();
    const bool isRecorded = live.recordAction(*sideOf(i % 2), 1 + i % 5, EventCode::SPF);
    const BenchClock::duration spent = BenchClock::now() - start;
    whole.push_back(milliseconds(spent));
    own.push_back(milliseconds(spent - files.spent));
    if (!isRecorded)
      std::exit(EXIT_FAILURE);
    const BenchClock::time_point counted = BenchClock::now();
    const bool hasFive = Fives::of(live).current[Side::Visitor].players != 0;
    fives.push_back(milliseconds(BenchClock::now() - counted));
    const BenchClock::time_point told = BenchClock::now();
    const bool isTold = !BenchFigures::of(live, BenchRecord(live), Side::Visitor, texts).five.empty();
    bench.push_back(milliseconds(BenchClock::now() - told));
    const BenchClock::time_point shared = BenchClock::now();
    const auto value = std::make_shared<const RunningGame>(RunningGame::of(live));
    handed.push_back(milliseconds(BenchClock::now() - shared));
    if (!hasFive || !isTold || value->counted.game.events.isEmpty())
      std::exit(EXIT_FAILURE);
  }
  printFigures(("core, behind event " + std::to_string(events)).c_str(), std::move(whole));
  printFigures("  of this its own work", std::move(own));
  printFigures("  who plays well together", std::move(fives));
  printFigures("  what the bench is told", std::move(bench));
  printFigures("  handed over to those who follow", std::move(handed));
}

} // namespace

int main() {
  const std::filesystem::path folder = liveBenchFolder();
  for (const int events : {600, 1500, 5000, 20000})
    measureCore(events, folder);
  return EXIT_SUCCESS;
}
