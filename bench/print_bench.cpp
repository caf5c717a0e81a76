// From a report's data to its file: the scorecard of a game and a season of 300 players, as PDF and workbook;
// and the time until the preview shows the first page of that season, with the longest time meanwhile in
// which its window answers nothing. Without a display it draws off screen.
#include "appearance/Dialogs.h"
#include "appearance/relabel.h"
#include "catalogue/GameCatalogue.h"
#include "game_to_measure.h"
#include "printing/Printers.h"
#include "printing/ReportFiles.h"
#include "printing/ReportOutput.h"
#include "printing/frmprint.h"
#include "report/GameReports.h"
#include "report/SeasonReports.h"
#include "scorecard/Scorecard.h"
#include "settings/Settings.h"
#include "simulator/GameSimulator.h"
#include "simulator/SampleTeams.h"

#include <QApplication>
#include <QLabel>
#include <QPrinter>
#include <QTemporaryDir>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <vector>

using namespace hooptab;
using Clock = std::chrono::steady_clock;

namespace {

constexpr int kSamples = 11;
constexpr std::size_t kPlayers = 385; // on the rosters; some 300 of them play
constexpr PageFormat kFormat = {Paper::A4, PageTurn::AsItFits};

double milliseconds(Clock::duration time) {
  return std::chrono::duration<double, std::milli>(time).count();
}

void print(const char* what, std::vector<double> samples) {
  std::ranges::sort(samples);
  std::printf("%-58s median %7.1f ms   fastest %7.1f ms   slowest %7.1f ms\n", what,
              samples[samples.size() / 2], samples.front(), samples.back());
}

void measure(const char* what, const std::function<std::size_t()>& work) {
  std::vector<double> samples;
  std::size_t bytes = work(); // fonts are found once
  for (int i = 0; i < kSamples; ++i) {
    const Clock::time_point start = Clock::now();
    bytes = work();
    samples.push_back(milliseconds(Clock::now() - start));
  }
  if (bytes == 0) {
    std::fprintf(stderr, "%s: nothing came of it\n", what);
    std::exit(EXIT_FAILURE);
  }
  print(what, std::move(samples));
}

class UnsyncedFileSystem : public FileSystem {
 public:
  int sync(int) override { return 0; }
};

// As many teams as make so many players, each against the next one, four times.
void writeSeason(const std::string& folder) {
  UnsyncedFileSystem files;
  ProfileStore store(files);
  const auto samples = sampleTeams();
  std::vector<SampleTeam> teams;
  for (std::size_t players = 0; players < kPlayers; players += teams.back().players.size()) {
    teams.push_back(samples[teams.size() % samples.size()]);
    teams.back().abbreviation = "T" + std::to_string(teams.size());
  }
  for (std::size_t game = 0; game < 4 * teams.size(); ++game) {
    const SampleTeam& visitors = teams[game % teams.size()];
    const SampleTeam& home = teams[(game + 1) % teams.size()];
    if (!store
             .write(folder + "/" + std::to_string(game) + ".GAM",
                    GameSimulator(visitors, home, game).play().batch())
             .isOnDisk())
      std::exit(EXIT_FAILURE);
  }
}

class NoPrinters : public Printers {
 public:
  bool hasAny() override { return false; }
  std::unique_ptr<QPrinter> choose(QWidget*, const QPageLayout&, int) override { return nullptr; }
};

class PaintWatch : public QObject {
 public:
  bool hasPainted = false;

 protected:
  bool eventFilter(QObject*, QEvent* event) override {
    hasPainted = hasPainted || event->type() == QEvent::Paint;
    return false;
  }
};

void measurePreview(const Texts& texts, FileSystem& files, const std::function<Report()>& make) {
  QtDialogs dialogs;
  NoPrinters printers;
  ReportOutput output(texts, dialogs, files);
  frmprint window(texts, dialogs, printers, output);
  window.resize(1366, 700);
  window.offer({{[] { return std::string("empty"); }, [] { return Report(); }}});
  window.show();
  QApplication::processEvents();
  PaintWatch watch;
  window.findChild<QWidget*>(QStringLiteral("pages"))
      ->findChild<QWidget*>(QStringLiteral("qt_scrollarea_viewport"))
      ->installEventFilter(&watch);
  const auto& count = *window.findChild<QLabel*>(QStringLiteral("lblPAGES"));

  std::vector<double> first;
  std::vector<double> whole;
  std::vector<double> longest;
  for (int i = 0; i < kSamples; ++i) {
    watch.hasPainted = false;
    const Clock::time_point start = Clock::now();
    window.offer({{[] { return std::string("season"); }, make}});
    while (!watch.hasPainted)
      QApplication::processEvents();
    first.push_back(milliseconds(Clock::now() - start));
    double gap = 0;
    while (count.text().contains(QStringLiteral("…"))) {
      const Clock::time_point turn = Clock::now();
      QApplication::processEvents();
      gap = std::max(gap, milliseconds(Clock::now() - turn));
    }
    whole.push_back(milliseconds(Clock::now() - start));
    longest.push_back(gap);
  }
  print("preview of the season until its first page is shown", std::move(first));
  print("  until all pages are there", std::move(whole));
  print("  longest time without an answer in between", std::move(longest));
}

} // namespace

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
    qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  QTemporaryDir folder;
  FileSystem files;
  ProfileStore store(files);
  Texts texts;
  Settings settings(store, fromQt(folder.path()));

  Scorecard card(store, gameToMeasure());
  if (card.load() != GameFileProblem::None)
    return EXIT_FAILURE;
  const auto scorecard = [&] {
    return scorecardReport(card.counted(), ScorecardView(texts), settings, texts);
  };
  measure("scorecard to PDF", [&] { return reportPdf(scorecard(), kFormat).size(); });

  writeSeason(fromQt(folder.path()));
  GameCatalogue catalogue(files);
  if (catalogue.scan({fromQt(folder.path())}) != ScanOutcome::Done)
    return EXIT_FAILURE;
  const SeasonStatistics statistics(catalogue, catalogue.select({}), {});
  std::printf("a season of %zu games with %zu players\n", statistics.games().size(),
              statistics.players().size());
  const auto season = [&] {
    return seasonReport(SeasonReport::PlayerShots, statistics, {}, settings, texts);
  };
  measure("the report of its players, before it is laid out", [&] { return season().blocks.size(); });
  measure("its players to PDF", [&] { return reportPdf(season(), kFormat).size(); });
  measure("its players to a workbook", [&] { return reportXlsx(season()).value_or("").size(); });
  measure("its players to a web page", [&] { return reportHtml(season(), "en", picturePng).size(); });
  measurePreview(texts, files, season);
  return EXIT_SUCCESS;
}
