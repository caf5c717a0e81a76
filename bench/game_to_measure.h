// The game that the benchmarks read: the file named by HOOPTAB_BENCH_GAME, else one that the simulator plays.
#pragma once

#include <string>

namespace hooptab {

[[nodiscard]] std::string gameToMeasure();

} // namespace hooptab
