// The bytes of a text file in whatever encoding other systems write: UTF-8 and UTF-16, with or without a byte
// order mark, else the western code page.
#pragma once

#include <string>
#include <string_view>

namespace hooptab {

// Levels, one in the other: more than any game has.
inline constexpr int kDeepest = 64;

// Valid UTF-8, without a byte order mark. UTF-16 without a mark is told by its zero bytes, as markup and JSON
// begin with ASCII letters.
[[nodiscard]] std::string asUtf8(std::string_view bytes);

} // namespace hooptab
