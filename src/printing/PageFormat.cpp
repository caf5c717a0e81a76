#include "printing/PageFormat.h"

#include <QLocale>

namespace hooptab {

Paper usualPaper() {
  switch (QLocale::system().territory()) {
  case QLocale::Canada:
  case QLocale::UnitedStates:
  case QLocale::Mexico:
  case QLocale::Philippines: return Paper::Letter;
  default: return Paper::A4;
  }
}

QPageLayout pageLayout(Paper paper, QPageLayout::Orientation orientation) {
  QPageLayout layout(QPageSize(paper == Paper::A4 ? QPageSize::A4 : QPageSize::Letter), orientation,
                     QMarginsF());
  layout.setMode(QPageLayout::FullPageMode);
  return layout;
}

QSizeF pageSize(const QPageLayout& layout) {
  return layout.fullRect(QPageLayout::Inch).size() * kUnitsPerInch;
}

} // namespace hooptab
