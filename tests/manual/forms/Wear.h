// What happens to a sheet of paper between the printer and the scanner, apart from being filled in.
#pragma once

#include "manual/forms/Damage.h"
#include "manual/forms/PaperSheet.h"
#include "simulator/Random.h"

namespace hooptab {

// Some dirt, folds and stains; what is worth naming is added to the damages.
void wear(PaperSheet& paper, Random& random, Damages& damages);

} // namespace hooptab
