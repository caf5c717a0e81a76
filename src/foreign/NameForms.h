// Names of people in the forms that other systems write them.
#pragma once

#include <string>
#include <string_view>

namespace hooptab {

// "Given Family" of "Family, Given", letters as they are; a name without a comma as it is.
[[nodiscard]] std::string givenFirst(std::string_view familyFirst);

struct NameParts {
  std::string given = {};
  std::string family = {}; // the last word
};
[[nodiscard]] NameParts partsOfName(std::string_view givenFirst);

} // namespace hooptab
