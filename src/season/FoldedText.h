// Text as it is compared with what somebody types: lower case, without accents.
#pragma once

#include <string>
#include <string_view>

namespace hooptab {

// In Windows-1252; what that does not have is a question mark.
[[nodiscard]] std::string foldedText(std::string_view utf8);

} // namespace hooptab
