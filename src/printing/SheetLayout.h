// Lays a report out that is meant for one page: a heading with a small table at its right, then blocks below
// each other, those that stand beside each other in equal widths. What is scarce gives room first: the air
// of rows, the gaps and the height of the flow, so that nothing is cut; lines to write on take what is left.
// Paints nothing.
#pragma once

#include "printing/PageFormat.h"
#include "printing/ReportPage.h"
#include "printing/TableLayout.h"

#include <QRectF>

#include <map>
#include <vector>

namespace hooptab {

class SheetLayout {
 public:
  // All must outlive it; the tables are laid out anew.
  SheetLayout(const Report& report, const PageFonts& fonts, std::map<const ReportTable*, TableLayout>& tables,
              const QRectF& body)
      : m_report(report), m_fonts(fonts), m_tables(tables), m_body(body) {}

  [[nodiscard]] ReportPage page();

 private:
  using Band = std::vector<const ReportBlock*>; // from left to right
  [[nodiscard]] std::vector<Band> bands() const;
  // With that share of all the room that could be given; where it ends.
  double lay(ReportPage& page, double ease);
  double layHead(ReportPage& page, const std::vector<const ReportBlock*>& blocks);
  double placeBeside(ReportPage& page, const ReportParagraph& paragraph, const QRectF& column) const;
  // Each gives its height.
  double place(ReportPage& page, const ReportBlock& block, const QRectF& column);
  double placeTable(ReportPage& page, const ReportTable& table, const QRectF& column);
  double placeTiles(ReportPage& page, const ReportTable& table, const QRectF& column) const;
  double placeSentences(ReportPage& page, const ReportSentences& block, const QRectF& column) const;
  double placeRuledLines(ReportPage& page, const ReportRuledLines& block, const QRectF& column) const;
  double placePicture(ReportPage& page, const ReportPicture& picture, const QRectF& column);
  double placeTitle(ReportPage& page, const std::optional<ReportTag>& tag, const std::string& title,
                    const std::string& note, const QRectF& column) const;
  double placeLines(ReportPage& page, PageFont font, const std::string& text, const QRectF& column,
                    bool isCentred) const;

  const Report& m_report;
  const PageFonts& m_fonts;
  std::map<const ReportTable*, TableLayout>& m_tables;
  QRectF m_body;
  double m_ease = 1;
  double m_ruledHeight = 21 * kUnitsPerMillimetre; // what lines to write on have at least, at first
};

} // namespace hooptab
