// Sorting the season's longest table: the lines of 10,000 games, by line, by a name, by a number.
#include "season/SnapshotModel.h"

#include <QGuiApplication>
#include <benchmark/benchmark.h>
#include <random>

using namespace hooptab;

namespace {

constexpr int kLines = 83159; // of a simulated season of 10,000 games
enum Column { Line, Team, Points, Columns };

void sortLines(benchmark::State& state) {
  std::mt19937 random(1);
  std::vector<QString> lines;
  for (int i = 0; i < kLines; ++i) {
    QStringList jerseys;
    for (int player = 0; player < 5; ++player)
      jerseys << QStringLiteral("%1").arg(random() % 60, 2, 10, QLatin1Char('0'));
    lines.push_back(jerseys.join(u'-'));
  }
  SnapshotModel model;
  model.showColumns({{.header = QStringLiteral("Line"), .isText = true},
                     {.header = QStringLiteral("Team"), .isText = true},
                     {.header = QStringLiteral("Points")}});
  TableRows rows;
  rows.count = kLines;
  rows.text = [&](int row, int column) {
    return column == Line ? lines[static_cast<std::size_t>(row)]
                          : QStringLiteral("Équipe %1").arg(row * 7919 % 300);
  };
  rows.sortValue = [](int row, int) -> double { return row * 7919 % 1000; };
  model.showRows(rows);
  const int column = static_cast<int>(state.range(0));
  Qt::SortOrder order = Qt::AscendingOrder;
  for (auto _ : state) {
    model.sort(column, order);
    order = order == Qt::AscendingOrder ? Qt::DescendingOrder : Qt::AscendingOrder;
  }
}
BENCHMARK(sortLines)->DenseRange(0, Columns - 1)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
    qputenv("QT_QPA_PLATFORM", "offscreen");
  QGuiApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
