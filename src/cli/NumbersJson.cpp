#include "cli/NumbersJson.h"

namespace hooptab {

namespace {

// Of one kind of shot, percentage and points follow from what is there.
bool follows(const Statistic& statistic) {
  return statistic.isShotPart(ShotPart::Percent) ||
         (statistic.isShotPart(ShotPart::Points) && !statistic.isOfAllShots());
}

void write(JsonWriter& json, std::string_view name, const Statistic& statistic, const BoxNumbers& numbers) {
  const StatisticValue value = statistic.value(numbers);
  if (statistic.kind == ValueKind::Percent)
    json.member(name, valueText(value, statistic.kind));
  else
    json.member(name, static_cast<int>(value.numerator));
}

} // namespace

void writeNumbers(JsonWriter& json, const BoxNumbers& numbers) {
  for (const Statistic& statistic : statistics()) {
    if (statistic.boxColumn > 0 && !follows(statistic))
      write(json, statistic.kind == ValueKind::Time ? "seconds" : statistic.gameName, statistic, numbers);
  }
}

void writeSeasonNumbers(JsonWriter& json, const BoxNumbers& numbers) {
  for (const Statistic& statistic : statistics()) {
    if (statistic.boxColumn == 0 && statistic.group == nullptr)
      write(json, statistic.name, statistic, numbers);
  }
}

} // namespace hooptab
