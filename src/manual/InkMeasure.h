// How much ink stands inside one cell of a form, and of what kind: measured against the paper around it and
// the black of the page, apart from the cell's printed border. Decides nothing.
#pragma once

#include "manual/FormGrid.h"

namespace hooptab {

struct CellInk {
  double filled = 0; // part of the inside that is as dark as ink
  double depth = 0;  // how dark its darkest parts are, as many as the smallest tick has: 0 paper, 1 black
};

[[nodiscard]] CellInk inkIn(const GrayPicture& picture, const FormGrid& grid, const FormCell& cell);

} // namespace hooptab
