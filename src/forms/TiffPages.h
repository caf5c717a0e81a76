// Counts the pages of a TIFF file along the links from directory to directory; nothing else of it is read.
#pragma once

#include <istream>

namespace hooptab {

// At most `most` + 1, however many there are: a few bytes make a directory. A link that leads out of the file
// or back ends the count.
[[nodiscard]] int countTiffPages(std::istream& file, int most);

} // namespace hooptab
