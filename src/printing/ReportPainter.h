// Paints the pages of a report, on screen, printer and PDF alike: black on white, and nothing that only a
// colour would tell.
#pragma once

#include "printing/ReportLayout.h"

#include <QPainter>

namespace hooptab {

// Pages of other reports in the same file, by which the foot counts.
struct PagesAround {
  std::size_t before = 0;
  std::size_t behind = 0;
};

// One page at the painter's origin, in units of PageFormat. Head and foot are made here: they need the number
// of pages, which is known when all are laid out.
void paintPage(QPainter& painter, const ReportLayout& layout, std::size_t page,
               const PagesAround& around = {});

// The drawing of a picture in that rectangle, without its title.
void paintDrawing(QPainter& painter, const ReportPicture& picture, const QRectF& box, const PageFonts& fonts);

} // namespace hooptab
