// Page number so-and-so of an endless series of filled-in, damaged scans of the input form, and what is truly
// on it. A person who looks at a page can tell of each cell with certainty whether it is ticked.
#pragma once

#include "tools/forms/Damage.h"
#include "tools/forms/Hand.h"

#include <optional>
#include <vector>

namespace hooptab {

enum class CellTruth { Empty, Ticked, TakenBack }; // a mark that was taken back does not count

struct ScannedSheet {
  int number = 0;
  GrayPicture picture;
  double dotsPerInch = 300;
  FormIdentifier identifier;
  std::vector<CellTruth> cells; // one for each of FormLayout::cells(), in their order
  Hand::Mark mark = Hand::Mark::Cross;
  Pen::Kind pen = Pen::Kind::BlackBallpoint;
  Damages damages;
};

// The same page for the same number. All marks with all pens come in 24 pages that follow one another, unless
// all is written with that one pen. Needs a QGuiApplication.
[[nodiscard]] ScannedSheet scannedSheet(int number, const FormLayout& layout,
                                        const std::optional<Pen>& pen = {});

} // namespace hooptab
