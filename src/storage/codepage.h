// The one place where text in memory (UTF-8) meets text on disk (Windows-1252). Bytes 81 8D 8F 90 9D, which
// the code page leaves open, stand for U+0081... and come back the same, so that every byte string survives a
// round trip.
#pragma once

#include <string>
#include <string_view>

namespace hooptab::codepage {

[[nodiscard]] std::string toUtf8(std::string_view stored);

// Composes letters and accents first (NFC, for the letters the code page has). A letter outside the code page
// becomes its nearest plain letter
// ("č" gives "c", "ł" gives "l"), "?" only where there is none. Invalid UTF-8 bytes become "?".
[[nodiscard]] std::string fromUtf8(std::string_view text);

// What `text` will read as after it has been stored.
[[nodiscard]] std::string storedForm(std::string_view text);

// The letter of the code page without its accent.
[[nodiscard]] char plainLetter(char letter);

// Lower-case form of one byte of the code page, accented letters included; for comparing names without regard
// to case.
[[nodiscard]] unsigned char foldCase(unsigned char byte);
[[nodiscard]] bool equalNames(std::string_view left, std::string_view right);

} // namespace hooptab::codepage
