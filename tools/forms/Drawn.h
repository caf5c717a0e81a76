// Measures drawn by chance: the same from the same seed.
#pragma once

#include "simulator/Random.h"

namespace hooptab {

inline double real(Random& random, double least, double most) {
  return least + (most - least) * (random.next() / 4294967296.0);
}
// Around 0 with standard deviation 1, never beyond 3.5: nobody's hand slips by ten centimetres.
inline double normal(Random& random) {
  double sum = 0;
  do {
    sum = -6;
    for (int term = 0; term < 12; ++term)
      sum += real(random, 0, 1);
  } while (sum < -3.5 || sum > 3.5);
  return sum;
}

} // namespace hooptab
