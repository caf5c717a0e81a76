// Refresh of an open scorecard after its game grew by one event: reading, counting, updating the tables,
// drawing the window.
#include "game/GameFile.h"
#include "game_to_measure.h"
#include "review/frmVIEW.h"
#include "settings/Settings.h"

#include <QApplication>
#include <benchmark/benchmark.h>
#include <filesystem>

using namespace hooptab;

namespace {

void refreshScorecard(benchmark::State& state) {
  const auto path = std::filesystem::temp_directory_path() / "hooptab-bench-refresh.GAM";
  std::filesystem::copy_file(gameToMeasure(), path, std::filesystem::copy_options::overwrite_existing);
  FileSystem files;
  ProfileStore store(files);
  Texts texts;
  Settings settings(store, std::filesystem::temp_directory_path().string());
  frmVIEW view(store, settings, texts);
  if (view.open(QString::fromStdString(path.string())) != GameFileProblem::None) {
    state.SkipWithError("cannot open the game");
    return;
  }
  view.resize(1366, 640);
  view.show();
  QApplication::processEvents();

  GameFile file(store, path.string());
  Game game;
  for (auto _ : state) {
    state.PauseTiming();
    if (file.append(4, 0, file.nextNumber(), {",GFG,0-1,40,100"}) != GameFileProblem::None)
      state.SkipWithError("the event was not written");
    state.ResumeTiming();
    view.refresh();
    view.repaint();
    QApplication::processEvents();
  }
  if (file.read(game) == GameFileProblem::None)
    state.counters["events"] = static_cast<double>(game.events.size());
}
BENCHMARK(refreshScorecard)->Iterations(100)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
    qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
