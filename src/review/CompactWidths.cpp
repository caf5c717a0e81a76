#include "review/CompactWidths.h"

#include "storage/Module1.h"

#include <algorithm>

namespace hooptab {

namespace {

constexpr int kLeast = 100;
constexpr int kMost = 20'000;

} // namespace

std::string textOfWidths(const CompactWidths& widths) {
  std::string text;
  for (const auto& [name, width] : widths)
    text += (text.empty() ? "" : ",") + name + '=' + std::to_string(width);
  return text;
}

CompactWidths widthsOfText(std::string_view text) {
  CompactWidths widths;
  while (!text.empty()) {
    const std::string_view part = text.substr(0, text.find(','));
    text.remove_prefix(std::min(part.size() + 1, text.size()));
    const std::size_t sign = part.rfind('=');
    const int width = sign == std::string_view::npos ? -1 : Module1::wholeNumber(part.substr(sign + 1));
    if (sign > 0 && width >= kLeast && width <= kMost)
      widths.emplace(part.substr(0, sign), width);
  }
  return widths;
}

} // namespace hooptab
