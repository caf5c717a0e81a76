// The paper of a report, and the unit in which its pages are laid out: a tenth of a point, so that fonts of
// whole units have every size that is wanted and a page is the same on every device.
#pragma once

#include <QPageLayout>
#include <QRectF>
#include <QSizeF>

namespace hooptab {

inline constexpr double kUnitsPerInch = 720;
inline constexpr double kUnitsPerMillimetre = kUnitsPerInch / 25.4;

enum class Paper { A4, Letter };
enum class PageTurn { AsItFits, Portrait, Landscape };

struct PageFormat {
  Paper paper = Paper::A4;
  PageTurn turn = PageTurn::AsItFits;
  friend bool operator==(const PageFormat&, const PageFormat&) = default;
};

// Where Letter paper is usual, as the system's region says.
[[nodiscard]] Paper usualPaper();
// Without margins: a report keeps its own.
[[nodiscard]] QPageLayout pageLayout(Paper paper, QPageLayout::Orientation orientation);
[[nodiscard]] QSizeF pageSize(const QPageLayout& layout); // in units

} // namespace hooptab
