#include "recording/JerseyMatch.h"

#include <algorithm>
#include <array>

namespace hooptab {

namespace {

// "09" as "9", "00" as "0".
std::string_view withoutZeros(std::string_view jersey) {
  while (jersey.size() > 1 && jersey.front() == '0')
    jersey.remove_prefix(1);
  return jersey;
}

} // namespace

std::vector<FittingJersey> fittingJerseys(std::span<const std::string> jerseys, std::string_view typed) {
  std::vector<FittingJersey> fitting;
  for (std::size_t place = 0; place < jerseys.size(); ++place) {
    const std::string_view jersey = jerseys[place];
    const std::string_view number = withoutZeros(jersey);
    if (!jersey.empty() && (jersey.starts_with(typed) || number.starts_with(typed)))
      fitting.push_back({place, jersey == typed || number == typed});
  }
  std::ranges::stable_sort(fitting, {}, [&](const FittingJersey& fit) {
    return jerseys[fit.place] == typed ? 0 : fit.isWhole ? 1 : 2;
  });
  return fitting;
}

bool canBecome(std::string_view typed, std::string_view jersey) {
  const auto goesOn = [&](std::string_view written) {
    return written.size() > typed.size() && written.starts_with(typed);
  };
  return goesOn(jersey) || goesOn(withoutZeros(jersey));
}

bool goesOn(std::span<const std::string> jerseys, std::string_view typed) {
  return std::ranges::any_of(jerseys, [&](const std::string& jersey) { return canBecome(typed, jersey); });
}

} // namespace hooptab
