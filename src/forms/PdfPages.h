// The pages of a PDF file, as many scanners write them, drawn as the pictures that they hold. Only for the
// process that was started for it, as ScanFile.h.
#pragma once

#include "forms/ScannedPage.h"

#include <QImage>
#include <QPdfDocument>

namespace hooptab {

// By the file's first bytes, whatever its name says.
[[nodiscard]] bool isPdf(const QString& path);

class PdfPages {
 public:
  // Why the file is not read, or None.
  [[nodiscard]] PageRefusal open(const QString& path);
  [[nodiscard]] int count() const { return m_document.pageCount(); }
  // Page from 0: its size in pixels at 300 dots per inch, and the page drawn so.
  [[nodiscard]] QSize size(int page) const;
  [[nodiscard]] QImage draw(int page);

 private:
  QPdfDocument m_document;
};

} // namespace hooptab
