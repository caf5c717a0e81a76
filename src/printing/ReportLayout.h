// Lays a report out in pages, step by step: the first page can be shown while the others are still to come.
// Decides paper turn, page breaks and what stands beside what. Paints nothing.
#pragma once

#include "printing/PageFormat.h"
#include "printing/ReportPage.h"
#include "printing/TableLayout.h"

#include <QPageLayout>
#include <QRectF>

#include <deque>
#include <map>

namespace hooptab {

// Of the scale below a shot chart of that width whose zones are compared with an average.
[[nodiscard]] double legendHeight(double width);

class ReportLayout {
 public:
  // The report must outlive it.
  ReportLayout(const Report& report, const PageFormat& format);
  ReportLayout(const ReportLayout&) = delete; // the tables refer to the fonts
  ReportLayout& operator=(const ReportLayout&) = delete;

  // Lays out one more block, or one more page of a long table.
  void step();
  void finish();
  bool isDone() const { return m_isDone; }

  const Report& report() const { return m_report; }
  const PageFonts& fonts() const { return m_fonts; }
  const QPageLayout& pageLayout() const { return m_layout; }
  QSizeF size() const { return m_size; }
  QRectF body() const { return m_body; } // within the margins, between head and foot
  // There is always one. The last one may still grow until all is done.
  const std::deque<ReportPage>& pages() const { return m_pages; }

 private:
  // What the block before took: the next one may stand at its right.
  struct Row {
    double top = 0;
    double right = 0;
    double bottom = 0;
  };

  [[nodiscard]] QPageLayout::Orientation orientation(const PageFormat& format);
  [[nodiscard]] double widestInGrid() const;
  [[nodiscard]] double tablesAcross(double room) const; // of those in a grid
  void place(const ReportParagraph& paragraph);
  void place(const ReportTable& table);
  void place(const ReportPicture& picture);
  void place(const ReportSentences& block);
  void place(const ReportRuledLines& block);
  void place(const ReportPageBreak& pageBreak);
  void place(const FormSheet& form);
  void placeTablePart();
  [[nodiscard]] std::size_t rowsUntil(double room) const;
  // The notes that stand directly below the table which is being laid out; 0 without any.
  [[nodiscard]] double notesHeight() const;
  // The least that has to stand below a heading: a few rows of the table that follows it, or a few lines.
  [[nodiscard]] double leastBelowHeading() const;
  double placeRows(std::size_t first, std::size_t last, QPointF at);
  void placeLines(const QStringList& lines, PageFont font);
  void newPage();
  [[nodiscard]] bool hasRoomBeside(double width, double height) const;
  void took(const QRectF& box);
  [[nodiscard]] double left() const { return m_body.bottom() - m_y; }
  ReportPage& page() { return m_pages.back(); }

  const Report& m_report;
  PageFonts m_fonts;
  QPageLayout m_layout;
  QSizeF m_size;
  QRectF m_body;
  std::map<const ReportTable*, TableLayout> m_tables;
  std::deque<ReportPage> m_pages;
  bool m_isDone = false;
  std::size_t m_block = 0;
  double m_y = 0; // where the next block begins
  Row m_row;
  // The table that is being laid out.
  const TableLayout* m_table = nullptr;
  std::size_t m_part = 0;
  std::size_t m_tableRow = 0; // of the rows that are being placed, part by part
  std::size_t m_tableEnd = 0;
};

} // namespace hooptab
