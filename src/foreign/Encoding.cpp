#include "foreign/Encoding.h"

#include "storage/Utf8.h"
#include "storage/codepage.h"

#include <cstdint>

namespace hooptab {

namespace {

enum class ByteOrder { LittleEndian, BigEndian };

void appendUtf8(std::string& text, std::uint32_t value) {
  const auto rest = [&](int shift) {
    text += static_cast<char>(0x80U | ((value >> static_cast<unsigned>(shift)) & 0x3FU));
  };
  if (value < 0x80) {
    text += static_cast<char>(value);
  } else if (value < 0x800) {
    text += static_cast<char>(0xC0U | (value >> 6U));
    rest(0);
  } else if (value < 0x10000) {
    text += static_cast<char>(0xE0U | (value >> 12U));
    rest(6);
    rest(0);
  } else {
    text += static_cast<char>(0xF0U | (value >> 18U));
    rest(12);
    rest(6);
    rest(0);
  }
}

std::string fromUtf16(std::string_view bytes, ByteOrder order) {
  constexpr std::uint32_t kReplacement = 0xFFFD;
  std::string text;
  text.reserve(bytes.size() / 2);
  const auto unitAt = [&](std::size_t i) {
    const auto first = static_cast<std::uint32_t>(static_cast<unsigned char>(bytes[i]));
    const auto second = static_cast<std::uint32_t>(static_cast<unsigned char>(bytes[i + 1]));
    return order == ByteOrder::LittleEndian ? first | (second << 8U) : second | (first << 8U);
  };
  const auto isHigh = [](std::uint32_t unit) { return unit >= 0xD800 && unit < 0xDC00; };
  const auto isLow = [](std::uint32_t unit) { return unit >= 0xDC00 && unit < 0xE000; };
  for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
    const std::uint32_t unit = unitAt(i);
    if (isHigh(unit) && i + 3 < bytes.size() && isLow(unitAt(i + 2))) {
      appendUtf8(text, 0x10000 + ((unit - 0xD800) << 10U) + (unitAt(i + 2) - 0xDC00));
      i += 2;
    } else {
      appendUtf8(text, isHigh(unit) || isLow(unit) ? kReplacement : unit);
    }
  }
  return text;
}

bool isUtf8(std::string_view text) {
  while (!text.empty()) {
    if (!takeCodePoint(text).isValid)
      return false;
  }
  return true;
}

} // namespace

std::string asUtf8(std::string_view bytes) {
  if (bytes.starts_with("\xEF\xBB\xBF"))
    bytes.remove_prefix(3);
  if (bytes.starts_with("\xFF\xFE"))
    return fromUtf16(bytes.substr(2), ByteOrder::LittleEndian);
  if (bytes.starts_with("\xFE\xFF"))
    return fromUtf16(bytes.substr(2), ByteOrder::BigEndian);
  if (bytes.size() > 1 && bytes[0] != '\0' && bytes[1] == '\0')
    return fromUtf16(bytes, ByteOrder::LittleEndian);
  if (bytes.size() > 1 && bytes[0] == '\0' && bytes[1] != '\0')
    return fromUtf16(bytes, ByteOrder::BigEndian);
  return isUtf8(bytes) ? std::string(bytes) : codepage::toUtf8(bytes);
}

} // namespace hooptab
