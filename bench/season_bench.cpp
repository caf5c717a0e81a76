// A season from its files, cold: scan, statistics, leaders, criteria, then the pairs and trios of a team.
// Prints the milliseconds of each and the most memory that was in use. With --gkeyfile, GLib's parser reads
// the same files instead.
#include "season/Leaders.h"
#include "season/TeamStudy.h"

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <sys/resource.h>

#ifdef HOOPTAB_HAS_GLIB
#include <glib.h>
#endif

using namespace hooptab;

namespace {

using Clock = std::chrono::steady_clock;

double milliseconds(Clock::time_point begin) {
  return std::chrono::duration<double, std::milli>(Clock::now() - begin).count();
}

double peakMegabytes() {
  rusage usage = {};
  getrusage(RUSAGE_SELF, &usage);
  return static_cast<double>(usage.ru_maxrss) / 1024;
}

int readSeason(const char* folder, unsigned threads, const char* cacheFolder) {
  FileSystem files;
  const Texts texts;
  GameCatalogue catalogue(files);
  const auto scanBegin = Clock::now();
  if (catalogue.scan({folder, false, threads, cacheFolder}) != ScanOutcome::Done) {
    std::fprintf(stderr, "cannot scan %s\n", folder);
    return 1;
  }
  const double scan = milliseconds(scanBegin);

  const auto statisticsBegin = Clock::now();
  const SeasonStatistics statistics(catalogue, catalogue.select({}), {});
  std::size_t leaders = 0;
  for (const SeasonView view : kSeasonViews) {
    const Leaders ofView(statistics.players(), view, texts);
    for (const StatisticLeaders& statistic : ofView.statistics())
      leaders += statistic.leaders.size();
  }
  const double summing = milliseconds(statisticsBegin);

  GameCriteria criteria;
  criteria.team = catalogue.teams().empty() ? "" : catalogue.teams()[0].key;
  criteria.where = GameCriteria::Where::Home;
  criteria.fromDay = 0;
  criteria.input = InputKind::Live;
  criteria.countsCopiesOnce = true;
  const auto criteriaBegin = Clock::now();
  const std::size_t selected = catalogue.select(criteria).size();
  const double selecting = milliseconds(criteriaBegin);

  const auto togetherBegin = Clock::now();
  std::size_t combinations = 0;
  for (const int size : {2, 3}) {
    if (!statistics.teams().empty())
      combinations += combinationsOf(statistics, statistics.teams()[0].team, size).size();
  }
  const double together = milliseconds(togetherBegin);

  std::printf("games %zu skipped %zu players %zu lines %zu leaders %zu selected %zu combinations %zu ",
              catalogue.games().size(), catalogue.skipped().size(), statistics.players().size(),
              statistics.lines().size(), leaders, selected, combinations);
  std::printf("scan_ms %.1f statistics_ms %.1f criteria_ms %.3f together_ms %.1f peak_mb %.1f\n", scan,
              summing, selecting, together, peakMegabytes());
  return 0;
}

#ifdef HOOPTAB_HAS_GLIB
int parseWithGKeyFile(const char* folder) {
  std::size_t parsed = 0;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    GKeyFile* const file = g_key_file_new();
    if (g_key_file_load_from_file(file, entry.path().c_str(), G_KEY_FILE_NONE, nullptr) != 0)
      ++parsed;
    g_key_file_free(file);
  }
  std::printf("files %zu peak_mb %.1f\n", parsed, peakMegabytes());
  return 0;
}
#endif

} // namespace

int main(int count, char** arguments) {
#ifdef HOOPTAB_HAS_GLIB
  if (count == 3 && std::strcmp(arguments[2], "--gkeyfile") == 0)
    return parseWithGKeyFile(arguments[1]);
#endif
  if (count < 2 || count > 4) {
    std::fprintf(stderr, "usage: bench_season FOLDER [THREADS [CACHE FOLDER] | --gkeyfile]\n");
    return 2;
  }
  const int threads = count > 2 ? std::atoi(arguments[2]) : 2;
  return readSeason(arguments[1], threads > 0 ? static_cast<unsigned>(threads) : 1U,
                    count > 3 ? arguments[3] : "");
}
