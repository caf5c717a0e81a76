// The string tables that the program carries: the bytes of texts_en.txt and texts_fr.txt as they are in the
// source tree. Reading them is the work of storage/Texts.
#pragma once

#include <string_view>

namespace hooptab {

[[nodiscard]] std::string_view englishTable();
[[nodiscard]] std::string_view frenchTable();

} // namespace hooptab
