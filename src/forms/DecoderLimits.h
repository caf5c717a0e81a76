// What a process that decodes a page may use.
#pragma once

#include <cstddef>

namespace hooptab {

struct DecoderLimits {
  int processorSeconds = 10;          // a colour page of 600 dots per inch takes 1 to 2
  std::size_t memory = 1'024'000'000; // bytes beyond what the process has when it begins
};

} // namespace hooptab
