// What a process that decodes a page may use.
#pragma once

#include <cstddef>

namespace hooptab {

struct DecoderLimits {
  int processorSeconds = 10;          // twenty times what a page in colour of 600 dots per inch takes
  std::size_t memory = 1'024'000'000; // bytes beyond what the process has when it begins
};

} // namespace hooptab
