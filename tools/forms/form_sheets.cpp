// form_sheets FOLDER FIRST COUNT [png|tif|bmp|jpg]: writes pages of the series as files, and a line about
// each.
#include "tools/forms/ScannedSheet.h"

#include <QGuiApplication>
#include <QImage>

#include <algorithm>
#include <cstdio>

using namespace hooptab;

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
    qputenv("QT_QPA_PLATFORM", "offscreen");
  QGuiApplication application(argc, argv);
  const QStringList arguments = QGuiApplication::arguments();
  if (arguments.size() < 4) {
    std::fprintf(stderr, "form_sheets FOLDER FIRST COUNT [png|tif|bmp|jpg]\n");
    return 2;
  }
  const QString ending = arguments.value(4, QStringLiteral("png"));
  const FormLayout layout;
  const int first = arguments[2].toInt();
  for (int number = first; number < first + arguments[3].toInt(); ++number) {
    const ScannedSheet sheet = scannedSheet(number, layout);
    QImage image(sheet.picture.pixels.data(), sheet.picture.width, sheet.picture.height, sheet.picture.width,
                 QImage::Format_Grayscale8);
    image.setDotsPerMeterX(static_cast<int>(sheet.dotsPerInch / 0.0254));
    image.setDotsPerMeterY(image.dotsPerMeterX());
    const QString file =
        QStringLiteral("%1/sheet%2.%3").arg(arguments[1]).arg(number, 3, 10, QLatin1Char('0')).arg(ending);
    if (!image.save(file)) {
      std::fprintf(stderr, "cannot write %s\n", qPrintable(file));
      return 1;
    }
    std::printf("%s  team %d sheet %d, %lld ticked, %lld taken back, %s, %s", qPrintable(file),
                sheet.identifier.team, sheet.identifier.sheet + 1,
                static_cast<long long>(std::ranges::count(sheet.cells, CellTruth::Ticked)),
                static_cast<long long>(std::ranges::count(sheet.cells, CellTruth::TakenBack)),
                Hand::name(sheet.mark), Pen::name(sheet.pen));
    for (int damage = 0; damage < kDamages; ++damage) {
      if (sheet.damages.has(static_cast<Damage>(damage)))
        std::printf(", %s", nameOf(static_cast<Damage>(damage)));
    }
    std::printf("\n");
  }
  return 0;
}
