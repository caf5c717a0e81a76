// Loads the pages of a picture file from a scanner as shades of grey: BMP, TIF (of one or more pages), PNG
// and JPEG. Says with a text's number why a picture is of no use; what is on the page is not looked at.
#pragma once

#include "manual/GrayPicture.h"

#include <QString>

namespace hooptab {

struct ScannedPage {
  int problem = 0; // number of the text that says it; then there is no picture
  GrayPicture picture;
  int pagesInFile = 1;
};

// Page from 0. May run in any thread, and costs no more memory than a picture reader is allowed to take. What
// is far finer than 300 dots per inch is made coarser.
[[nodiscard]] ScannedPage loadScan(const QString& path, int page);

} // namespace hooptab
