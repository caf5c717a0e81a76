#include "game/EventKind.h"

namespace hooptab {

namespace {

constexpr std::string_view kCounterNames[] = {"FGM", "FGA", "FTM", "FTA", "F3M", "F3A", "LLM", "LLA",
                                              "LRM", "LRA", "PBM", "PBA", "DKM", "DKA", "Ast", "BS",
                                              "ST",  "TO",  "OR",  "DR",  "S1",  "S2",  "PF",  "TF"};
static_assert(std::size(kCounterNames) == kCounterCount);

} // namespace

std::string_view counterName(Counter counter) {
  return kCounterNames[static_cast<std::size_t>(counter)];
}

} // namespace hooptab
