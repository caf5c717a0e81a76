// Reads 200 filled-in, damaged scans of the input form, whose truth is known: how many cells are right, of
// which the reader was in doubt, and the time that it takes for a page. Exit status 1 when it misses what is
// asked of it. form_bench [FIRST COUNT] reads other pages of the endless series.
#include "tools/forms/FormScore.h"

#include <QGuiApplication>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <vector>

using namespace hooptab;

namespace {

constexpr double kLongestMilliseconds = 2000; // for a page

// Of this process alone, whatever else the machine does meanwhile.
double processorMilliseconds() {
  return 1000.0 * static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
}

} // namespace

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
    qputenv("QT_QPA_PLATFORM", "offscreen");
  QGuiApplication application(argc, argv);
  const QStringList arguments = QGuiApplication::arguments();
  const int first = arguments.size() > 2 ? arguments[1].toInt() : 0;
  const int count = arguments.size() > 2 ? arguments[2].toInt() : 200;
  if (count < 1)
    return 2;

  const FormLayout layout;
  const FormReader reader(layout);
  FormScore score(layout);
  std::vector<double> times;
  for (int number = first; number < first + count; ++number) {
    const ScannedSheet sheet = scannedSheet(number, layout);
    const double start = processorMilliseconds();
    const FormReading reading = reader.read(sheet.picture);
    times.push_back(processorMilliseconds() - start);
    score.add(sheet, reading);
  }
  score.print(stdout);
  std::ranges::sort(times);
  const bool isFast = times.back() < kLongestMilliseconds;
  std::printf("processor time for a page: median %.0f ms, 99th of 100 %.0f ms, longest %.0f ms\n",
              times[times.size() / 2], times[(times.size() * 99 - 1) / 100], times.back());
  std::printf("%s\n", score.isGood() && isFast ? "good" : "NOT GOOD ENOUGH");
  return score.isGood() && isFast ? 0 : 1;
}
