#include "storage/Module1.h"

#include <algorithm>
#include <cctype>
#include <climits>
#include <cstdio>

namespace hooptab::Module1 {

namespace {

bool isDigit(char letter) {
  return letter >= '0' && letter <= '9';
}
bool isBlank(char letter) {
  return letter == ' ' || letter == '\t';
}

std::int64_t numberOf(std::string_view digits) {
  std::int64_t number = 0;
  for (const char digit : digits) {
    if (!isDigit(digit) || number > INT_MAX)
      break;
    number = number * 10 + (digit - '0');
  }
  return number;
}

} // namespace

std::string_view field(std::string_view text, std::size_t n, char separator) {
  while (n > 1) {
    const auto at = text.find(separator);
    if (at == std::string_view::npos)
      return {};
    text.remove_prefix(at + 1);
    --n;
  }
  return text.substr(0, text.find(separator));
}

std::string_view trimmed(std::string_view text) {
  while (!text.empty() && isBlank(text.front()))
    text.remove_prefix(1);
  while (!text.empty() && isBlank(text.back()))
    text.remove_suffix(1);
  return text;
}

int leadingNumber(std::string_view text) {
  text = trimmed(text);
  const bool isNegative = !text.empty() && text.front() == '-';
  if (!text.empty() && (text.front() == '-' || text.front() == '+'))
    text.remove_prefix(1);
  const std::int64_t number = numberOf(text);
  return static_cast<int>(std::clamp<std::int64_t>(isNegative ? -number : number, INT_MIN, INT_MAX));
}

bool flag(std::string_view text) {
  text = trimmed(text);
  constexpr std::string_view kTrue = "true";
  const bool saysTrue =
      std::ranges::equal(text, kTrue, [](char left, char right) { return (left | 0x20) == right; });
  return saysTrue || leadingNumber(text) != 0;
}

std::string clockText(int seconds) {
  seconds = std::max(seconds, 0);
  char text[24];
  std::snprintf(text, sizeof text, "%02d:%02d", seconds / 60, seconds % 60);
  return text;
}

bool jerseyBefore(std::string_view left, std::string_view right) {
  const int leftNumber = leadingNumber(left);
  const int rightNumber = leadingNumber(right);
  return leftNumber != rightNumber ? leftNumber < rightNumber : left.size() < right.size();
}

std::string onCourtList(std::vector<std::string> jerseys) {
  for (std::string& jersey : jerseys) {
    if (jersey.size() < 2)
      jersey.insert(0, 2 - jersey.size(), '0');
  }
  const auto sorted = jerseys.begin() + static_cast<std::ptrdiff_t>(std::min<std::size_t>(jerseys.size(), 5));
  std::stable_sort(jerseys.begin(), sorted, jerseyBefore);
  std::string list = "IN";
  for (const std::string& jersey : jerseys)
    list += "-" + jersey;
  return jerseys.empty() ? "IN-" : list;
}

bool isOnCourtList(std::string_view text) {
  if (!text.starts_with("IN"))
    return false;
  text.remove_prefix(2);
  const auto areDashes = [](char left, char right) { return left == '-' && right == '-'; };
  return text.empty() || text == "-" ||
         (text.front() == '-' && text.back() != '-' &&
          std::ranges::adjacent_find(text, areDashes) == text.end());
}

JerseysOfList::JerseysOfList(std::string_view list, int most) : m_most(most) {
  if (isOnCourtList(list))
    m_jerseys = list.substr(std::min(std::string_view("IN-").size(), list.size()));
}

JerseysOfList countedJerseys(std::string_view list) {
  constexpr int kOnCourt = 5;
  return JerseysOfList(list, kOnCourt);
}

std::string percentText(int made, int attempted) {
  return attempted <= 0 ? "0.0%" : quotientText(std::int64_t{made} * 100, attempted, 1) + "%";
}

std::int64_t roundedQuotient(std::int64_t numerator, std::int64_t denominator) {
  const std::int64_t magnitude = numerator < 0 ? -numerator : numerator;
  const std::int64_t rounded = (magnitude * 2 + denominator) / (denominator * 2);
  return numerator < 0 ? -rounded : rounded;
}

std::string quotientText(std::int64_t numerator, std::int64_t denominator, int decimals) {
  std::int64_t scale = 1;
  for (int i = 0; i < decimals; ++i)
    scale *= 10;
  const std::int64_t rounded = roundedQuotient((numerator < 0 ? -numerator : numerator) * scale, denominator);
  std::string fraction = decimals > 0 ? std::to_string(rounded % scale) : std::string();
  fraction.insert(0, static_cast<std::size_t>(decimals) - fraction.size(), '0');
  std::string text = std::to_string(rounded / scale);
  if (decimals > 0)
    text += "." + fraction;
  return numerator < 0 && rounded != 0 ? "-" + text : text;
}

std::string asFileName(std::string text) {
  std::ranges::replace_if(
      text,
      [](char letter) {
        return static_cast<unsigned char>(letter) < ' ' || letter == '\x7F' ||
               std::string_view("/\\:*?\"<>|").find(letter) != std::string_view::npos;
      },
      '-');
  return text;
}

std::string withPlaceholder(std::string_view text, std::string_view replacement,
                            std::string_view placeholder) {
  std::string result;
  for (;;) {
    const auto at = text.find(placeholder);
    result += text.substr(0, at);
    if (at == std::string_view::npos)
      return result;
    result += replacement;
    text.remove_prefix(at + placeholder.size());
  }
}

} // namespace hooptab::Module1
