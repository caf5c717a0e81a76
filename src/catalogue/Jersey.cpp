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
  const int leftNumber = Module1::wholeNumber(left);
  const int rightNumber = Module1::wholeNumber(right);
  if ((leftNumber < 0) != (rightNumber < 0))
    return rightNumber < 0;
  if (leftNumber != rightNumber)
    return leftNumber < rightNumber;
  return leftNumber < 0 ? left < right : left.size() < right.size();
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
