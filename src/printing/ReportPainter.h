// Paints the pages of a report, on screen, printer and PDF alike: black on white, and nothing that only a
// colour would tell.
#pragma once

#include "printing/ReportLayout.h"

#include <QPainter>

namespace hooptab {

// One page at the painter's origin, in units of PageFormat. Head and foot are made here: they need the number
// of pages, which is known when all are laid out.
void paintPage(QPainter& painter, const ReportLayout& layout, std::size_t page);

// The drawing of a picture in that rectangle, without its title.
void paintDrawing(QPainter& painter, const ReportPicture& picture, const QRectF& box, const PageFonts& fonts);

} // namespace hooptab
