// Paths of files as values of a profile file. Names of files are bytes, and the profile file knows only the
// letters of its code page: what it could not give back is written as % and two hexadecimal digits a byte.
#pragma once

#include <string>
#include <string_view>

namespace hooptab {

// All but plain printable characters escaped.
[[nodiscard]] std::string escapedPath(std::string_view path);
[[nodiscard]] std::string unescapedPath(std::string_view text);

// The path as it is, as other programs read it, where the file gives it back; else escaped.
[[nodiscard]] std::string pathValue(std::string_view path);

} // namespace hooptab
