// The address of a request taken apart: what a client sent, of which nothing is trusted. Whether there is
// anything at an address is the source's affair.
#pragma once

#include "publish/WebSource.h"

#include <cstddef>
#include <string_view>

namespace hooptab {

// Longer than any address of ours.
inline constexpr std::size_t kLongestWebAddress = 2'048;

enum class WebAddressProblem {
  None,
  TooLong,
  Malformed, // no path from "/", parts that are empty, "." or "..", escapes that are none, no UTF-8
};

struct WebAddressReading {
  WebRequest request; // empty where there is a problem
  WebAddressProblem problem = WebAddressProblem::None;
};

// Of the target of a request, for example "/api/events?after=k2x9-126".
[[nodiscard]] WebAddressReading readWebAddress(std::string_view target);

} // namespace hooptab
