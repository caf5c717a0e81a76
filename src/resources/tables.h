// The string tables that the program carries: the bytes of texts_en.txt and texts_fr.txt as they are in the
// source tree. Reading them is the work of settings/Texts. And the pages that --help prints.
#pragma once

#include <string_view>

namespace hooptab {

[[nodiscard]] std::string_view englishTable();
[[nodiscard]] std::string_view frenchTable();

// As they are printed.
struct UsagePage {
  std::string_view english;
  std::string_view french;
};
[[nodiscard]] UsagePage programUsage();     // of hooptab
[[nodiscard]] UsagePage commandLineUsage(); // of hooptab-cli

} // namespace hooptab
