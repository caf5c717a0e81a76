// Paints a sheet of the paper input form by its layout.
#pragma once

#include "printing/ReportPage.h"

#include <QPainter>
#include <QSizeF>

namespace hooptab {

// In the middle of a page of that size, in units of PageFormat.
void paintForm(QPainter& painter, const FormSheet& sheet, QSizeF page, const PageFonts& fonts);

} // namespace hooptab
