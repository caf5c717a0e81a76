// Texts with several places to fill in. All are filled in one pass: a name that looks like a place is a name.
#pragma once

#include <string>
#include <string_view>

namespace hooptab {

// All "XXX", "YYY" and "ZZZ" of a text replaced.
[[nodiscard]] std::string withPlaceholders(std::string_view text, std::string_view x, std::string_view y,
                                           std::string_view z = {});

} // namespace hooptab
