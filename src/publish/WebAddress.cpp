#include "publish/WebAddress.h"

#include "storage/Utf8.h"

#include <optional>

namespace hooptab {

namespace {

std::optional<int> hexDigit(char digit) {
  if (digit >= '0' && digit <= '9')
    return digit - '0';
  if (digit >= 'a' && digit <= 'f')
    return digit - 'a' + 10;
  if (digit >= 'A' && digit <= 'F')
    return digit - 'A' + 10;
  return std::nullopt;
}

bool isPlainText(std::string_view text) {
  while (!text.empty()) {
    const CodePoint character = takeCodePoint(text);
    if (!character.isValid || isControl(character.value))
      return false;
  }
  return true;
}

enum class Plus { IsPlus, IsBlank };

// None where an escape is none, or what comes out is no text.
std::optional<std::string> decoded(std::string_view text, Plus plus) {
  std::string result;
  result.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '+' && plus == Plus::IsBlank) {
      result += ' ';
    } else if (text[i] != '%') {
      result += text[i];
    } else {
      const auto high = i + 2 < text.size() ? hexDigit(text[i + 1]) : std::nullopt;
      const auto low = high ? hexDigit(text[i + 2]) : std::nullopt;
      if (!low)
        return std::nullopt;
      result += static_cast<char>(*high * 16 + *low);
      i += 2;
    }
  }
  return isPlainText(result) ? std::optional(result) : std::nullopt;
}

// What stands before the separator, which is taken away with it.
std::string_view takeUntil(std::string_view& text, char separator) {
  const std::size_t end = text.find(separator);
  const std::string_view part = text.substr(0, end);
  text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
  return part;
}

// A part is decoded by itself, so that an escaped "/" makes no parts.
std::optional<std::string> decodedPath(std::string_view text) {
  if (!text.starts_with('/'))
    return std::nullopt;
  text.remove_prefix(1);
  std::string path;
  while (!text.empty()) {
    const std::optional<std::string> part = decoded(takeUntil(text, '/'), Plus::IsPlus);
    if (!part || part->empty() || *part == "." || *part == ".." ||
        part->find_first_of("/\\") != std::string::npos)
      return std::nullopt;
    path += '/' + *part;
  }
  return path;
}

} // namespace

WebAddressReading readWebAddress(std::string_view target) {
  if (target.size() > kLongestWebAddress)
    return {{}, WebAddressProblem::TooLong};
  if (target.find('#') != std::string_view::npos)
    return {{}, WebAddressProblem::Malformed};
  const std::string_view written = takeUntil(target, '?');
  std::optional<std::string> path = decodedPath(written);
  if (!path)
    return {{}, WebAddressProblem::Malformed};
  if (written.ends_with('/'))
    *path += '/';
  WebAddressReading reading{{std::move(*path), {}}, WebAddressProblem::None};
  while (!target.empty()) {
    std::string_view value = takeUntil(target, '&');
    const std::optional<std::string> name = decoded(takeUntil(value, '='), Plus::IsBlank);
    const std::optional<std::string> text = decoded(value, Plus::IsBlank);
    if (!name || !text)
      return {{}, WebAddressProblem::Malformed};
    if (!name->empty())
      reading.request.query.try_emplace(*name, *text);
  }
  return reading;
}

} // namespace hooptab
