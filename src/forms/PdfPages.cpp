#include "forms/PdfPages.h"

#include <QFile>

namespace hooptab {

namespace {

constexpr double kDots = 300; // per inch
constexpr double kPointsPerInch = 72;
constexpr double kDotsPerMetre = kDots * 39.37007874;

} // namespace

bool isPdf(const QString& path) {
  constexpr int kHead = 1024; // before it other bytes may stand: ISO 32000, annex H
  QFile file(path);
  return file.open(QIODevice::ReadOnly) && file.read(kHead).contains("%PDF-");
}

PageRefusal PdfPages::open(const QString& path) {
  using Reason = PageRefusal::Reason;
  switch (m_document.load(path)) {
  case QPdfDocument::Error::None: return {count() > 0 ? Reason::None : Reason::Damaged};
  case QPdfDocument::Error::IncorrectPassword:
  case QPdfDocument::Error::UnsupportedSecurityScheme: return {Reason::Locked};
  default: return {Reason::Damaged};
  }
}

QSize PdfPages::size(int page) const {
  constexpr double kMostPoints = 1e6; // more is no paper, and no number of pixels
  const QSizeF points = m_document.pagePointSize(page).boundedTo({kMostPoints, kMostPoints});
  return (points * (kDots / kPointsPerInch)).toSize();
}

QImage PdfPages::draw(int page) {
  QImage image = m_document.render(page, size(page));
  image.setDotsPerMeterX(qRound(kDotsPerMetre));
  image.setDotsPerMeterY(qRound(kDotsPerMetre));
  return image;
}

} // namespace hooptab
