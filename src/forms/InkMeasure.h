// How much ink stands inside one cell of a form, and of what kind: measured against the paper around it and
// the black of the page, apart from the cell's printed border. Decides nothing.
#pragma once

#include "forms/FormGrid.h"

namespace hooptab {

struct CellInk {
  // How dark the darkest parts are, as many as the smallest tick has and rather those in the middle of the
  // cell: 0 paper, 1 black.
  double depth = 0;
  // The square millimetres that are more than half as dark as that.
  double extent = 0;
  // The part of the inside that gives back less light than paper does, all in all.
  double filled = 0;
  // How dark the gaps on two opposite sides of the cell are, as depth: what goes on there on both sides is a
  // fold, a hair or a stain rather than a tick.
  double beyond = 0;
};

// Nothing counts as darker than `darkest`: beside faint strokes, small black dirt is no more than they are.
[[nodiscard]] CellInk inkIn(const GrayPicture& picture, const FormGrid& grid, const FormCell& cell,
                            double darkest = 1);

} // namespace hooptab
