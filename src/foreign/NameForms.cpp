#include "foreign/NameForms.h"

#include "storage/Module1.h"

namespace hooptab {

std::string givenFirst(std::string_view familyFirst) {
  const std::size_t comma = familyFirst.find(',');
  if (comma == std::string_view::npos)
    return std::string(Module1::trimmed(familyFirst));
  const std::string_view family = Module1::trimmed(familyFirst.substr(0, comma));
  const std::string_view given = Module1::trimmed(familyFirst.substr(comma + 1));
  if (given.empty() || family.empty())
    return std::string(given.empty() ? family : given);
  return std::string(given) + ' ' + std::string(family);
}

NameParts partsOfName(std::string_view givenFirst) {
  const std::string_view name = Module1::trimmed(givenFirst);
  const std::size_t blank = name.rfind(' ');
  if (blank == std::string_view::npos)
    return {{}, std::string(name)};
  return {std::string(Module1::trimmed(name.substr(0, blank))), std::string(name.substr(blank + 1))};
}

} // namespace hooptab
