#include "catalogue/Jersey.h"

#include "storage/Module1.h"

#include <algorithm>

namespace hooptab {

std::string canonicalJersey(std::string_view jersey) {
  if (Module1::wholeNumber(jersey) > 0)
    jersey.remove_prefix(jersey.find_first_not_of('0'));
  return std::string(jersey);
}

bool jerseyBefore(const std::string& left, const std::string& right) {
  const bool isLeftNumber = Module1::wholeNumber(left) >= 0;
  const bool isRightNumber = Module1::wholeNumber(right) >= 0;
  if (isLeftNumber && isRightNumber)
    return Module1::jerseyBefore(left, right);
  return isLeftNumber || (!isRightNumber && left < right);
}

std::string lineName(const std::vector<std::string>& jerseys) {
  std::string name;
  for (const std::string& jersey : jerseys)
    name += (name.empty() ? "" : "-") + jersey;
  return name;
}

std::string lineList(const std::vector<std::string>& jerseys, bool teamHasBothZeros) {
  std::string list = "IN";
  for (const std::string& jersey : jerseys) {
    list += jersey.size() < 2 || (jersey == "00" && teamHasBothZeros) ? "-0" : "-";
    list += jersey;
  }
  return list;
}

} // namespace hooptab
