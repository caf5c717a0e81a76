#include "storage/Placeholders.h"

#include <algorithm>
#include <array>

namespace hooptab {

std::string withPlaceholders(std::string_view text, std::string_view x, std::string_view y,
                             std::string_view z) {
  constexpr std::array<std::string_view, 3> kPlaces = {"XXX", "YYY", "ZZZ"};
  const std::array<std::string_view, 3> replacements = {x, y, z};
  std::string result;
  while (!text.empty()) {
    const auto place = std::ranges::find_if(kPlaces, [&](auto name) { return text.starts_with(name); });
    if (place == kPlaces.end()) {
      result += text.front();
      text.remove_prefix(1);
    } else {
      result += replacements[static_cast<std::size_t>(place - kPlaces.begin())];
      text.remove_prefix(place->size());
    }
  }
  return result;
}

} // namespace hooptab
