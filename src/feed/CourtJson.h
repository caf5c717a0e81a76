// The half court's lines for pages that draw it, as docs/formats/feed.md describes them: the numbers are
// those of court/CourtGeometry, so screen, paper and pages have one court.
#pragma once

#include <string>

namespace hooptab {

[[nodiscard]] std::string courtJson();

} // namespace hooptab
