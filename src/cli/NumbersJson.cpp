#include "cli/NumbersJson.h"

namespace hooptab {

void writeNumbers(JsonWriter& json, const BoxNumbers& numbers) {
  for (const Statistic& statistic : statistics()) {
    // Percentages, and points of one kind of shot, follow from what is there.
    const bool follows = statistic.kind == ValueKind::Percent ||
                         (statistic.isShotPart(ShotPart::Points) && !statistic.isOfAllShots());
    if (statistic.boxColumn > 0 && !follows)
      json.member(statistic.kind == ValueKind::Time ? "seconds" : statistic.gameName,
                  static_cast<int>(statistic.value(numbers).numerator));
  }
}

} // namespace hooptab
