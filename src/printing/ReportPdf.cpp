#include "appearance/relabel.h"
#include "printing/ReportFiles.h"
#include "printing/ReportPainter.h"

#include <QBuffer>
#include <QImage>
#include <QPdfWriter>

#include <cmath>

namespace hooptab {

namespace {

// A PDF file while it is being made, page by page.
class PdfFile {
 public:
  explicit PdfFile(const QString& title) : m_writer(&m_buffer) {
    m_buffer.open(QIODevice::WriteOnly);
    m_writer.setResolution(static_cast<int>(kUnitsPerInch)); // units of the layout as they are
    m_writer.setTitle(title);
    m_writer.setCreator(QStringLiteral("HOOPTAB Basketball"));
  }
  void add(const ReportLayout& layout, std::size_t page, const PagesAround& around = {}) {
    if (m_painter.isActive()) {
      m_writer.newPage();
    } else {
      m_writer.setPageLayout(layout.pageLayout());
      m_painter.begin(&m_writer);
    }
    paintPage(m_painter, layout, page, around);
  }
  [[nodiscard]] std::string close() {
    m_painter.end();
    return m_buffer.data().toStdString();
  }

 private:
  QBuffer m_buffer;
  QPdfWriter m_writer;
  QPainter m_painter; // ends before what it paints on
};

} // namespace

std::string reportPdf(const Report& report, const PageFormat& format, const TaskWatch& watch) {
  ReportLayout layout(report, format);
  while (!layout.isDone() && !watch.isCancelled()) // the foot of every page names their number
    layout.step();
  watch.progress(0, layout.pages().size());
  PdfFile file(toQt(report.subject.empty() ? report.title : report.subject + " – " + report.title));
  for (std::size_t page = 0; page < layout.pages().size() && !watch.isCancelled(); ++page) {
    file.add(layout, page);
    watch.advance();
  }
  return watch.isCancelled() ? std::string() : file.close();
}

std::string pagesPdf(std::span<const Report> pages, const std::string& title, const PageFormat& format,
                     const TaskWatch& watch) {
  PdfFile file(toQt(title));
  for (std::size_t i = 0; i < pages.size() && !watch.isCancelled(); ++i) {
    ReportLayout layout(pages[i], format);
    layout.finish();
    file.add(layout, 0, {i, pages.size() - i - 1});
    watch.advance();
  }
  return watch.isCancelled() ? std::string() : file.close();
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
