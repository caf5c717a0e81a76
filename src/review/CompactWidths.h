// How wide the user has made the columns of the compact boxes, kept as text under the columns' names. Empty,
// as at first: each is as wide as what it can hold, and they share what room is left.
#pragma once

#include <map>
#include <string>
#include <string_view>

namespace hooptab {

// In thousandths of the width that a column needs, so that they hold in every size of type.
using CompactWidths = std::map<std::string, int, std::less<>>;

[[nodiscard]] std::string textOfWidths(const CompactWidths& widths); // "MIN=1250,Name=980"
// What is no width that a hand would choose is left out.
[[nodiscard]] CompactWidths widthsOfText(std::string_view text);

} // namespace hooptab
