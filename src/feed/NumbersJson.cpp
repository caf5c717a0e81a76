#include "feed/NumbersJson.h"

#include <algorithm>
#include <optional>
#include <vector>

namespace hooptab {

namespace {

// Of one kind of shot, percentage and points follow from what is there.
bool follows(const Statistic& statistic) {
  return statistic.isShotPart(ShotPart::Percent) ||
         (statistic.isShotPart(ShotPart::Points) && !statistic.isOfAllShots());
}

// Of a game's table, in the order that readers know; what is not in it stands behind.
const std::vector<const Statistic*>& inOrder() {
  static const auto kInOrder = [] {
    constexpr std::string_view kKnown[] = {"Time", "FGM", "FGA", "F3M", "F3A",   "FTM", "FTA", "LLM",
                                           "LLA",  "LRM", "LRA", "PBM", "PBA",   "DKM", "DKA", "M",
                                           "A",    "PTS", "Ast", "BS",  "ST",    "TO",  "OR",  "DR",
                                           "S1",   "S2",  "PF",  "TF",  "rating"};
    std::vector<const Statistic*> all;
    for (const Statistic& statistic : statistics()) {
      if (statistic.boxColumn > 0 && !follows(statistic))
        all.push_back(&statistic);
    }
    std::ranges::stable_sort(
        all, {}, [&](const Statistic* each) { return std::ranges::find(kKnown, each->gameName) - kKnown; });
    return all;
  }();
  return kInOrder;
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
  for (const Statistic* statistic : inOrder())
    write(json, statistic->kind == ValueKind::Time ? "seconds" : statistic->gameName, *statistic, numbers);
}

void writeSeasonNumbers(JsonWriter& json, const BoxNumbers& numbers) {
  for (const Statistic& statistic : statistics()) {
    if (statistic.boxColumn == 0 && statistic.group == nullptr)
      write(json, statistic.name, statistic, numbers);
  }
}

void writeRates(JsonWriter& json, const RateBasis& basis, bool ofPlayers) {
  for (const Rate& rate : rates()) {
    if (rate.isOfPlayersOnly && !ofPlayers)
      continue;
    json.name(rate.name);
    if (const std::optional<double> value = rate.value(basis))
      json.value(*value);
    else
      json.null();
  }
}

} // namespace hooptab
