// The zones of a shot chart as circles on the half court: as large as they have attempts, and told apart
// where more or fewer points come from, by colour and by their edges. For paper.
#pragma once

#include "report/Report.h"

#include <QPainter>
#include <QRectF>

namespace hooptab {

void paintZoneCircles(QPainter& painter, const ShotDrawing& drawing, const QRectF& area);

} // namespace hooptab
