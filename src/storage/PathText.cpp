#include "storage/PathText.h"

#include "storage/Utf8.h"
#include "storage/codepage.h"

#include <algorithm>

namespace hooptab {

namespace {

int hexDigit(char character) {
  constexpr std::string_view kDigits = "0123456789ABCDEFabcdef";
  const std::size_t place = kDigits.find(character);
  return place == std::string_view::npos ? -1 : static_cast<int>(place < 16 ? place : place - 6);
}

} // namespace

std::string escapedPath(std::string_view path) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  std::string result;
  for (const char character : path) {
    const auto byte = static_cast<unsigned char>(character);
    if (byte > ' ' && byte < 0x7F && byte != '%')
      result += character;
    else
      result.append({'%', kDigits[byte >> 4U], kDigits[byte & 0xFU]});
  }
  return result;
}

std::string unescapedPath(std::string_view text) {
  std::string result;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const int high = text[i] == '%' && i + 2 < text.size() ? hexDigit(text[i + 1]) : -1;
    const int low = high < 0 ? -1 : hexDigit(text[i + 2]);
    if (low < 0) {
      result += text[i];
    } else {
      result += static_cast<char>(high * 16 + low);
      i += 2;
    }
  }
  return result;
}

std::string pathValue(std::string_view path) {
  const bool isKept =
      codepage::storedForm(path) == path && !path.starts_with(' ') && !path.ends_with(' ') &&
      std::ranges::none_of(path, [](char letter) { return static_cast<unsigned char>(letter) < ' '; });
  return isKept ? std::string(path) : escapedPath(path);
}

} // namespace hooptab
