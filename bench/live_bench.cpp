// From a click in the live window to the event durable on disk and every counter on the screen, for the
// events behind the 1,500th of a game. The clicks are the window system's events from the moment they reach
// the program; the disk is that of HOOPTAB_BENCH_FOLDER, the screen that of the display in use. Without the
// window of the bench and beside it. And what the list of events alone takes to follow one more of them, in
// games of several lengths.
#include "appearance/Dialogs.h"
#include "appearance/Theme.h"
#include "events/LiveEventRows.h"
#include "live/frmLIVE.h"
#include "live_measure.h"
#include "recording/Slot.h"
#include "settings/Settings.h"

#include <QApplication>
#include <QTest>
#include <cstdio>
#include <cstdlib>
#include <vector>

using namespace hooptab;

namespace {

// The presses of a game: buttons of all panels, and free throws made and missed.
struct Press {
  QWidget* target;
  Qt::MouseButton button;
};
std::vector<Press> pressesOf(frmLIVE& window) {
  std::vector<Press> presses;
  for (const Slot slot : kSlots) {
    const auto press = [&](const char* name, Qt::MouseButton button) {
      const QString objectName = QLatin1String(name) + QStringLiteral("(%1)").arg(slot.number());
      presses.push_back({window.findChild<QWidget*>(objectName), button});
    };
    for (const char* name : {"cmdBUTDRB", "cmdBUTF", "cmdBUTTO"})
      press(name, Qt::LeftButton);
    press("cmdBUTFT", slot.number() % 2 == 0 ? Qt::LeftButton : Qt::RightButton);
  }
  return presses;
}

void showAll() {
  QApplication::processEvents();
  QApplication::sync(); // the display has drawn what it was sent
}

enum class Bench { Closed, Open };

int measureWindow(int events, Bench bench, const std::filesystem::path& folder) {
  TimedFileSystem files;
  ProfileStore store(files);
  Texts texts;
  Settings settings(store, folder.string());
  settings.asksRebounds = false;
  QtDialogs dialogs;
  StandingTime time;
  const QString path = QString::fromStdString(liveGameOf(events, folder));
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
  if (bench == Bench::Open)
    window.switchBench();
  showAll();

  std::vector<double> whole;
  std::vector<double> disk;
  const std::vector<Press> presses = pressesOf(window);
  QWindow* handle = window.windowHandle();
  for (std::size_t i = 0; i < kSamples; ++i) {
    const Press& press = presses[i % presses.size()];
    const QPoint place = press.target->mapTo(&window, press.target->rect().center());
    files.spent = {};
    const BenchClock::time_point start = BenchClock::now();
    QTest::mousePress(handle, press.button, {}, place);
    showAll();
    whole.push_back(milliseconds(BenchClock::now() - start));
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
  printFigures("click to disk and screen, behind event " + std::to_string(events) +
                   (bench == Bench::Open ? ", bench open" : ""),
               std::move(whole));
  printFigures("  of this the disk", std::move(disk));
  return EXIT_SUCCESS;
}

int measureList(int events, const std::filesystem::path& folder) {
  UnsyncedFileSystem files;
  ProfileStore store(files);
  const Texts texts;
  StandingTime time;
  LiveGame live(store, time);
  if (live.open(liveGameOf(events, folder)) != GameFileProblem::None || !putFiveOnCourt(live))
    return EXIT_FAILURE;
  LiveEventRows rows(texts);
  rows.show(live.game());
  EventListModel model(texts);
  model.show(live.game());
  std::vector<double> whole;
  std::vector<double> modelAlone;
  for (int i = 0; i < kSamples; ++i) {
    if (!live.recordAction(*sideOf(i % 2), 1 + i % 5, EventCode::SPF))
      return EXIT_FAILURE;
    const BenchClock::time_point start = BenchClock::now();
    rows.show(live.game());
    whole.push_back(milliseconds(BenchClock::now() - start));
    const BenchClock::time_point begin = BenchClock::now();
    model.show(live.game());
    modelAlone.push_back(milliseconds(BenchClock::now() - begin));
  }
  printFigures("list of events with its checks, behind event " + std::to_string(events), std::move(whole));
  printFigures("  its model alone", std::move(modelAlone));
  return EXIT_SUCCESS;
}

} // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  Theme::apply(application, ColourScheme::Light); // fonts and style of the program
  const std::filesystem::path folder = liveBenchFolder();
  for (const int events : {1500, 20000}) {
    if (measureList(events, folder) != EXIT_SUCCESS ||
        measureWindow(events, Bench::Closed, folder) != EXIT_SUCCESS ||
        measureWindow(events, Bench::Open, folder) != EXIT_SUCCESS)
      return EXIT_FAILURE;
  }
  return EXIT_SUCCESS;
}
