#include "printing/Printers.h"

#include "printing/ReportPainter.h"

#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>

#include <algorithm>

namespace hooptab {

bool QtPrinters::hasAny() {
  return !QPrinterInfo::availablePrinterNames().isEmpty();
}

std::unique_ptr<QPrinter> QtPrinters::choose(QWidget* parent, const QPageLayout& layout, int pages) {
  auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
  printer->setPageLayout(layout);
  QPrintDialog dialog(printer.get(), parent);
  dialog.setOption(QAbstractPrintDialog::PrintPageRange);
  dialog.setMinMax(1, pages);
  return dialog.exec() == QDialog::Accepted ? std::move(printer) : nullptr;
}

bool printReport(QPrinter& printer, const Report& report, const PageFormat& format, const TaskWatch& watch) {
  ReportLayout layout(report, format);
  while (!layout.isDone() && !watch.isCancelled()) // the foot of every page names their number
    layout.step();
  // A print system prints what it has got of a job that ends early: half a report.
  if (!watch.commit())
    return false;
  // The pages are laid out for this paper, whatever was chosen in the printer's own dialog.
  printer.setPageLayout(layout.pageLayout());
  QPainter painter;
  if (!painter.begin(&printer))
    return false;
  const double scale = printer.resolution() / kUnitsPerInch;
  painter.scale(scale, scale);
  const int count = static_cast<int>(layout.pages().size());
  const int first = std::clamp(printer.fromPage(), 1, count);
  const int last = printer.toPage() == 0 ? count : std::clamp(printer.toPage(), first, count);
  watch.progress(0, static_cast<std::size_t>(last - first + 1));
  for (int page = first; page <= last; ++page) {
    if (page > first && !printer.newPage()) {
      printer.abort();
      return false;
    }
    paintPage(painter, layout, static_cast<std::size_t>(page - 1));
    watch.advance();
  }
  return painter.end() && printer.printerState() != QPrinter::Error;
}

} // namespace hooptab
