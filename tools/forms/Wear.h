// What happens to a sheet of paper between the printer and the scanner, apart from being filled in.
#pragma once

#include "simulator/Random.h"
#include "tools/forms/Damage.h"
#include "tools/forms/PaperSheet.h"

namespace hooptab {

// Some dirt, folds and stains; what is worth naming is added to the damages.
void wear(PaperSheet& paper, Random& random, Damages& damages);

} // namespace hooptab
