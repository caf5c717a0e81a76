#include "season/Leaders.h"

#include <algorithm>
#include <string_view>
#include <tuple>
#include <utility>

namespace hooptab {

namespace {

template <class Value>
struct Candidate {
  const SeasonRow* row;
  Value value; // of a fraction the denominator is above 0
};

bool isGreater(const StatisticValue& left, const StatisticValue& right) {
  return left.numerator * right.denominator > right.numerator * left.denominator;
}
bool isGreater(double left, double right) {
  return left > right;
}
template <class Value>
bool isEqual(const Value& left, const Value& right) {
  return !isGreater(left, right) && !isGreater(right, left);
}
double numberOf(const StatisticValue& value) {
  return sortValue(value);
}
double numberOf(double value) {
  return value;
}

template <class Value>
bool leadsBefore(const Candidate<Value>& left, const Candidate<Value>& right) {
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

template <class Value, class TextOf>
std::vector<Leader> firstOf(std::vector<Candidate<Value>> candidates, const TextOf& text) {
  if (candidates.size() > Leaders::kShown) { // a season has thousands of players
    const auto last = candidates.begin() + (Leaders::kShown - 1);
    std::ranges::nth_element(candidates, last, leadsBefore<Value>);
    const Value least = last->value;
    std::erase_if(candidates, [&](const auto& each) { return isGreater(least, each.value); });
  }
  std::ranges::sort(candidates, leadsBefore<Value>);
  std::vector<Leader> leaders;
  for (std::size_t i = 0; i < candidates.size(); ++i) {
    const auto& [row, value] = candidates[i];
    const bool isTied = i > 0 && isEqual(value, candidates[i - 1].value);
    leaders.push_back(
        {isTied ? leaders.back().rank : static_cast<int>(i) + 1, row, text(*row, value), numberOf(value)});
  }
  return leaders;
}

StatisticLeaders leadersOf(int column, std::span<const SeasonRow> rows, SeasonView view, const Texts& texts,
                           const Qualification& minimum) {
  std::vector<Candidate<StatisticValue>> candidates;
  for (const SeasonRow& row : rows) {
    const StatisticValue value = seasonValue(row, column, view);
    const bool hasTime = !isPerTime(view) || row.numbers.seconds > 0;
    if (value.numerator > 0 && hasTime && minimum.isMet(row, column, view))
      candidates.push_back({&row, value});
  }
  return {column, firstOf(std::move(candidates), [&](const SeasonRow& row, const StatisticValue&) {
            return seasonCell(row, column, view, texts);
          })};
}

} // namespace

Leaders::Leaders(std::span<const SeasonRow> rows, SeasonView view, const Texts& texts,
                 const Qualification& minimum, const SeasonRating& ownRating) {
  for (const Statistic& statistic : hooptab::statistics()) {
    if (!statistic.hasLeaders() || (statistic.kind == ValueKind::Time && isPerTime(view)))
      continue; // everybody plays a minute a minute
    m_statistics.push_back(leadersOf(statistic.seasonColumn, rows, view, texts, minimum));
  }
  if (!ownRating.isThere())
    return;
  const auto value = [&](const SeasonRow& row) {
    return minimum.isUnder(row, SeasonTable::Players, view) ? std::nullopt : ownRating.value(row, view);
  };
  const auto text = [&](const SeasonRow& row, double) { return ownRating.text(row, view); };
  m_statistics.push_back({kSeasonOwnColumn, leadersBy(rows, value, text)});
}

std::vector<Leader> leadersBy(std::span<const SeasonRow> rows,
                              const std::function<std::optional<double>(const SeasonRow&)>& value,
                              const std::function<std::string(const SeasonRow&, double)>& text) {
  std::vector<Candidate<double>> candidates;
  for (const SeasonRow& row : rows) {
    if (const std::optional<double> found = value(row); found && *found > 0)
      candidates.push_back({&row, *found});
  }
  return firstOf(std::move(candidates), text);
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
