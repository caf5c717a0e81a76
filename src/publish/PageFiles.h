// What the program's pages are made of, as it carries them: the files of src/publish/pages, and the words
// that they show.
#pragma once

#include "settings/Text.h"

#include <span>
#include <string_view>

namespace hooptab {

struct PageFile {
  std::string_view name; // "score.html"
  std::string_view content;
};
[[nodiscard]] std::span<const PageFile> pageFiles();

// The texts whose names begin with "Web": the key that pages know them by is the rest of the name, with a
// small first letter.
struct PageWord {
  std::string_view key;
  Text text;
};
[[nodiscard]] std::span<const PageWord> pageWords();

} // namespace hooptab
