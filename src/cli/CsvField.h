// A text as a field of CSV (RFC 4180): between quotes where it has to be.
#pragma once

#include <string>
#include <string_view>

namespace hooptab {

inline std::string csvField(std::string_view text) {
  if (text.find_first_of(",\"\r\n") == std::string_view::npos)
    return std::string(text);
  std::string quoted = "\"";
  for (const char letter : text) {
    quoted += letter;
    if (letter == '"')
      quoted += '"';
  }
  return quoted + '"';
}

} // namespace hooptab
