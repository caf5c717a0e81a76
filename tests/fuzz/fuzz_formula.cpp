// Any bytes as a formula: what is read gives finite numbers or none, the same each time, and what is wrong
// stands at a place of the formula, without a crash or a hang.
#include "formula/FormulaRating.h"

#include <cmath>
#include <cstdlib>
#include <string_view>

using namespace hooptab;

namespace {

void require(bool holds) {
  if (!holds)
    std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view formula(reinterpret_cast<const char*>(data), size);
  const FormulaReading reading = readFormula(formula);
  if (reading.problem) {
    require(!reading.rating);
    require(reading.problem->character >= 1 && reading.problem->character <= size + 1);
    return 0;
  }
  RatedNumbers numbers;
  for (std::size_t i = 0; i < kCounterCount; ++i)
    numbers.box.counters.counts[i] = static_cast<std::int32_t>(i % 7);
  numbers.plusMinus = -4;
  const std::optional<double> value = ownRatingOf(reading.rating, numbers);
  require(!value || std::isfinite(*value));
  require(ownRatingOf(reading.rating, numbers) == value);
  return 0;
}
