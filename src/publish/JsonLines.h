// JSON as a stream of messages needs it: all of it in one line.
#pragma once

#include "publish/FeedChange.h"

#include <string>
#include <string_view>

namespace hooptab {

// Bytes of a text that are no UTF-8 are replaced: names come from files, which may hold anything.
[[nodiscard]] std::string oneLine(const FeedJson& json);
[[nodiscard]] std::string inOneLine(std::string_view json);

} // namespace hooptab
