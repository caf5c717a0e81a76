#include "storage/Utf8.h"

namespace hooptab {

std::string printable(std::string_view text) {
  std::string shown;
  while (!text.empty()) {
    const CodePoint next = takeCodePoint(text);
    shown += isControl(next.value) || !next.isValid ? std::string_view("?") : next.bytes;
  }
  return shown;
}

} // namespace hooptab
