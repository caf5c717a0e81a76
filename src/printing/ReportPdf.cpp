#include "appearance/relabel.h"
#include "printing/ReportFiles.h"
#include "printing/ReportPainter.h"

#include <QBuffer>
#include <QImage>
#include <QPdfWriter>

#include <cmath>

namespace hooptab {

std::string reportPdf(const Report& report, const PageFormat& format, const TaskWatch& watch) {
  ReportLayout layout(report, format);
  while (!layout.isDone() && !watch.isCancelled()) // the foot of every page names their number
    layout.step();
  watch.progress(0, layout.pages().size());
  QBuffer buffer;
  QPdfWriter writer(&buffer);
  buffer.open(QIODevice::WriteOnly);
  writer.setResolution(static_cast<int>(kUnitsPerInch)); // units of the layout as they are
  writer.setPageLayout(layout.pageLayout());
  writer.setTitle(toQt(report.subject.empty() ? report.title : report.subject + " – " + report.title));
  writer.setCreator(QStringLiteral("HOOPTAB Basketball"));
  QPainter painter(&writer);
  for (std::size_t page = 0; page < layout.pages().size() && !watch.isCancelled(); ++page) {
    if (page > 0)
      writer.newPage();
    paintPage(painter, layout, page);
    watch.advance();
  }
  painter.end();
  if (watch.isCancelled())
    return {};
  return buffer.data().toStdString();
}

std::string picturePng(const ReportPicture& picture) {
  constexpr double kScale = 0.32; // 230 dots per inch: sharp on paper too
  const bool isShotChart = std::holds_alternative<ShotDrawing>(picture.drawing);
  const bool isFlow = std::holds_alternative<FlowDrawing>(picture.drawing);
  const double width = (isFlow ? 186 : 120) * kUnitsPerMillimetre;
  const double height = width * (isShotChart ? court::kLength / court::kWidth : isFlow ? 0.27 : 0.45);
  const PageFonts fonts;
  QImage image(static_cast<int>(std::ceil(width * kScale)), static_cast<int>(std::ceil(height * kScale)),
               QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter painter(&image);
  painter.scale(kScale, kScale);
  paintDrawing(painter, picture, QRectF(0, 0, width, height), fonts);
  painter.end();
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  image.save(&buffer, "PNG");
  return bytes.toStdString();
}

} // namespace hooptab
