// How a table stands on a page: the widths of its columns, the parts into which a table is split that is too
// wide (each with the repeated columns, and no group of columns torn apart), and the places of its cells.
#pragma once

#include "printing/ReportPage.h"

#include <cstddef>
#include <vector>

namespace hooptab {

class TableLayout {
 public:
  struct Part {
    std::vector<std::size_t> columns;
    double width = 0;
    QStringList title = {}; // in lines
  };

  // Measures the texts; both must outlive it.
  TableLayout(const ReportTable& table, const PageFonts& fonts);
  // Into how many parts that room would split the table.
  std::size_t partsIn(double room);
  // Splits the table for that room.
  void fit(double room);
  // The same, the repeated columns widened where there is room left.
  void fill(double room);
  // In one part, each text in one line, cut where it has to be; what room is left goes to all columns alike.
  void spread(double room);
  // Above and below the text of a row, in place of the usual.
  void setAir(double air) { m_air = air; }
  [[nodiscard]] double naturalWidth() const;
  [[nodiscard]] double leastWidth() const; // in one part, with its texts in several lines

  const ReportTable& table() const { return m_table; }
  const std::vector<Part>& parts() const { return m_parts; }
  double titleHeight(const Part& part) const;
  double headHeight(const Part& part) const;
  [[nodiscard]] double tallestHead() const; // of all parts, with the title
  // The same in every part, so that a row goes on at the same height.
  double rowHeight(std::size_t row) const { return m_rowHeights[row]; }
  double width(const Part& part) const; // that of the title, where it is longer

  // `at` is the upper left corner; the height is that of the functions above.
  void placeTitle(ReportPage& page, const Part& part, QPointF at) const;
  void placeHead(ReportPage& page, const Part& part, QPointF at) const;
  void placeRow(ReportPage& page, const Part& part, std::size_t row, QPointF at) const;

 private:
  struct Unit { // columns that stay together
    std::size_t first = 0;
    std::size_t count = 0;
  };
  void measure();
  void widenForTitles();
  void widenNames(double room);
  [[nodiscard]] double spareOf(std::size_t column) const;
  void shrink(double part);
  void split(double room);
  void splitShrunk(double room, double shrunk);
  void measureParts(double room);
  [[nodiscard]] std::vector<Unit> units() const;
  [[nodiscard]] PageFont titleFont() const;
  [[nodiscard]] static PageFont fontOf(const ReportRow& row, const ReportCell& cell);
  void placeNote(ReportPage& page, const Part& part, std::size_t row, QPointF at) const;
  [[nodiscard]] QStringList noteLines(const Part& part, const ReportRow& row) const;
  void placeCell(ReportPage& page, PageFont font, const QString& text, std::size_t column, QPointF at) const;
  [[nodiscard]] QStringList linesOf(PageFont font, const QString& text, std::size_t column) const;
  [[nodiscard]] std::size_t countOfLines(PageFont font, const std::string& text, std::size_t column) const;
  [[nodiscard]] bool hasGroupTitles(const Part& part) const;

  const ReportTable& m_table;
  const PageFonts& m_fonts;
  std::vector<double> m_natural; // widths that the texts ask for, long names in several lines
  std::vector<double> m_whole;   // the same, in one line
  std::vector<double> m_widths;
  std::vector<bool> m_isShown;     // which columns stand on paper at all
  std::vector<bool> m_beginsGroup; // which columns have a line at their left
  std::vector<double> m_rowHeights;
  std::vector<Part> m_parts;
  bool m_hasSingleLines = false;
  double m_air;
};

} // namespace hooptab
