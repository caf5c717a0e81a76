// Where a window opens that stands beside the main one: as it was left, else in the middle of a screen on
// which its parent is not, where there is one.
#pragma once

#include <QSize>

class QByteArray;
class QWidget;

namespace hooptab {

// `geometry` as QWidget::saveGeometry() gave it; `size` where it says nothing.
void showOnOtherScreen(QWidget& window, const QByteArray& geometry, QSize size);

} // namespace hooptab
