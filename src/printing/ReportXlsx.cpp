#include "printing/ReportFiles.h"
#include "printing/Workbook.h"

namespace hooptab {

std::optional<std::string> reportXlsx(const Report& report, const TaskWatch& watch) {
  std::size_t rows = 0;
  for (const ReportBlock& block : report.blocks) {
    if (const auto* table = std::get_if<ReportTable>(&block))
      rows += table->rows.size();
  }
  watch.progress(0, rows);
  Workbook book;
  for (const ReportBlock& block : report.blocks) {
    if (const auto* table = std::get_if<ReportTable>(&block); table != nullptr && !watch.isCancelled())
      book.add(*table, report.subject, watch);
    const auto* picture = std::get_if<ReportPicture>(&block);
    const auto* flow = picture == nullptr ? nullptr : std::get_if<FlowDrawing>(&picture->drawing);
    if (flow != nullptr && flow->emptyWords.empty() && !watch.isCancelled())
      book.add(*flow, picture->title);
  }
  return watch.isCancelled() ? std::nullopt : book.close();
}

std::optional<std::string> pagesXlsx(const ReportTable& summary, std::span<const Report> pages,
                                     std::span<const std::string> names, const TaskWatch& watch) {
  Workbook book;
  book.add(summary, {}, {});
  for (std::size_t i = 0; i < pages.size() && !watch.isCancelled(); ++i) {
    book.addPage(pages[i], names[i]);
    watch.advance();
  }
  return watch.isCancelled() ? std::nullopt : book.close();
}

} // namespace hooptab
