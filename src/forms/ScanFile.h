// Decodes a page of a file from a scanner: BMP, TIF (of one or more pages), PNG, JPEG and PDF. Only for the
// process that was started for it: a damaged picture may bring the decoders down. What is on the page is
// not looked at.
#pragma once

#include "forms/ScannedPage.h"

#include <QString>

#include <functional>

namespace hooptab {

// Page from 0. What is far finer than 300 dots per inch is made coarser. `counted` is told the number of
// pages, 0 when they cannot be counted, once and before the page is decoded.
[[nodiscard]] ScannedPage loadScan(const QString& path, int page, const std::function<void(int)>& counted);

} // namespace hooptab
