#include "season/Leaders.h"

#include <algorithm>
#include <string_view>
#include <tuple>

namespace hooptab {

namespace {

struct Candidate {
  const SeasonRow* row;
  StatisticValue value; // denominator above 0
};

bool isGreater(const StatisticValue& left, const StatisticValue& right) {
  return left.numerator * right.denominator > right.numerator * left.denominator;
}
bool isEqual(const StatisticValue& left, const StatisticValue& right) {
  return !isGreater(left, right) && !isGreater(right, left);
}

bool leadsBefore(const Candidate& left, const Candidate& right) {
  if (!isEqual(left.value, right.value))
    return isGreater(left.value, right.value);
  const auto key = [](const SeasonRow& row) {
    return std::tuple(row.games, row.nameOrder, std::string_view(row.name), row.id);
  };
  return key(*left.row) < key(*right.row);
}

bool isPerTime(SeasonView view) {
  return view == SeasonView::PerMinute || view == SeasonView::PerForty;
}

StatisticLeaders leadersOf(int column, std::span<const SeasonRow> rows, SeasonView view, const Texts& texts,
                           const Qualification& minimum) {
  std::vector<Candidate> candidates;
  for (const SeasonRow& row : rows) {
    const StatisticValue value = seasonValue(row, column, view);
    const bool hasTime = !isPerTime(view) || row.numbers.seconds > 0;
    if (value.numerator > 0 && hasTime && minimum.isMet(row, column, view))
      candidates.push_back({&row, value});
  }
  if (candidates.size() > Leaders::kShown) { // a season has thousands of players
    const auto last = candidates.begin() + (Leaders::kShown - 1);
    std::ranges::nth_element(candidates, last, leadsBefore);
    const StatisticValue least = last->value;
    std::erase_if(candidates, [&](const Candidate& each) { return isGreater(least, each.value); });
  }
  std::ranges::sort(candidates, leadsBefore);
  StatisticLeaders result{column, {}};
  for (std::size_t i = 0; i < candidates.size(); ++i) {
    const bool isTied = i > 0 && isEqual(candidates[i].value, candidates[i - 1].value);
    result.leaders.push_back({isTied ? result.leaders.back().rank : static_cast<int>(i) + 1,
                              candidates[i].row, seasonCell(*candidates[i].row, column, view, texts)});
  }
  return result;
}

} // namespace

Leaders::Leaders(std::span<const SeasonRow> rows, SeasonView view, const Texts& texts,
                 const Qualification& minimum) {
  for (const Statistic& statistic : hooptab::statistics()) {
    if (!statistic.hasLeaders() || (statistic.kind == ValueKind::Time && isPerTime(view)))
      continue; // everybody plays a minute a minute
    m_statistics.push_back(leadersOf(statistic.seasonColumn, rows, view, texts, minimum));
  }
}

std::optional<LeaderPlace> placeOf(const SeasonRow& row, std::span<const SeasonRow> rows,
                                   const Qualification& minimum,
                                   const std::function<std::optional<double>(const SeasonRow&)>& value) {
  const auto hasPlayed = [&](const SeasonRow& each) {
    return !minimum.isUnder(each, SeasonTable::Players, SeasonView::PerGame);
  };
  const std::optional<double> own = value(row);
  if (!own || !hasPlayed(row))
    return std::nullopt;
  LeaderPlace place{1, 0};
  for (const SeasonRow& each : rows) {
    const std::optional<double> other = hasPlayed(each) ? value(each) : std::nullopt;
    place.of += other ? 1 : 0;
    place.place += other && *other > *own ? 1 : 0;
  }
  return place;
}

} // namespace hooptab
