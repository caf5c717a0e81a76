#include "feed/FeedWriting.h"

#include <array>

namespace hooptab {

void writeTeamNumber(JsonWriter& json, const std::optional<Side>& team) {
  if (team)
    json.value(numberOf(*team));
  else
    json.null();
}

void writeTimeOuts(JsonWriter& json, const std::optional<TimeOuts>& timeOuts) {
  json.name("left");
  if (timeOuts)
    json.value(timeOuts->left);
  else
    json.null();
  json.name("of");
  if (timeOuts)
    json.value(timeOuts->left + timeOuts->taken);
  else
    json.null();
}

std::string webColour(std::uint32_t stored) {
  constexpr std::string_view kDigits = "0123456789abcdef";
  std::string colour = "#";
  for (const unsigned shift : {0U, 8U, 16U}) { // red is the lowest byte
    colour += kDigits[stored >> (shift + 4) & 0xFU];
    colour += kDigits[stored >> shift & 0xFU];
  }
  return colour;
}

std::string_view zoneName(court::ChartZone zone) {
  constexpr std::array<std::string_view, court::kChartZoneCount> kNames = {
      "underBasket", "paint",    "midRangeLeft", "midRangeCentre", "midRangeRight",
      "leftCorner",  "leftWing", "top",          "rightWing",      "rightCorner"};
  return kNames[static_cast<std::size_t>(zone)];
}

} // namespace hooptab
