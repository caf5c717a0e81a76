// The order of names, the same on every machine and in both languages: by letters without accents first, then
// by accents, then small letters before large ones. Every list of names sorts by it.
#pragma once

#include <string>
#include <string_view>

namespace hooptab {

// A text whose bytes compare as the names do. `name` is UTF-8; blanks and signs come before digits, digits
// before letters; æ, œ and ß stand as the two letters that they are made of.
[[nodiscard]] std::string nameOrderKey(std::string_view name);

} // namespace hooptab
