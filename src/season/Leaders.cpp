#include "season/Leaders.h"

#include <algorithm>
#include <string_view>
#include <tuple>

namespace hooptab {

namespace {

// What one leads in: everything that is counted, but neither misses nor percentages, which a single lucky
// shot would lead.
constexpr std::string_view kStatistics[] = {"Time", "PF",  "TF",  "rating", "TGM", "PTS", "F2M", "F3M",
                                            "FTM",  "FGM", "LLM", "LRM",    "PBM", "DKM", "Ast", "BS",
                                            "ST",   "TO",  "OR",  "DR",     "TR",  "U1",  "U2"};

struct Candidate {
  const SeasonRow* row;
  SeasonValue value; // denominator above 0
};

bool isGreater(const SeasonValue& left, const SeasonValue& right) {
  return left.numerator * right.denominator > right.numerator * left.denominator;
}
bool isEqual(const SeasonValue& left, const SeasonValue& right) {
  return !isGreater(left, right) && !isGreater(right, left);
}

bool leadsBefore(const Candidate& left, const Candidate& right) {
  if (!isEqual(left.value, right.value))
    return isGreater(left.value, right.value);
  const auto key = [](const SeasonRow& row) {
    return std::tuple(row.games, std::string_view(row.name), row.id);
  };
  return key(*left.row) < key(*right.row);
}

StatisticLeaders leadersOf(int column, std::span<const SeasonRow> rows, SeasonView view, const Texts& texts) {
  std::vector<Candidate> candidates;
  for (const SeasonRow& row : rows) {
    const SeasonValue value = seasonValue(row, column, view);
    const bool hasTime = view != SeasonView::PerMinute || row.numbers.seconds > 0;
    if (value.numerator > 0 && hasTime)
      candidates.push_back({&row, value});
  }
  std::ranges::sort(candidates, leadsBefore);
  StatisticLeaders result{column, {}};
  for (std::size_t i = 0; i < candidates.size(); ++i) {
    const bool isTied = i > 0 && isEqual(candidates[i].value, candidates[i - 1].value);
    if (i >= Leaders::kShown && !isTied)
      break;
    result.leaders.push_back({isTied ? result.leaders.back().rank : static_cast<int>(i) + 1,
                              candidates[i].row, seasonCell(*candidates[i].row, column, view, texts)});
  }
  return result;
}

} // namespace

Leaders::Leaders(std::span<const SeasonRow> rows, SeasonView view, const Texts& texts) {
  for (const std::string_view name : kStatistics) {
    const int column = seasonColumn(name).index;
    if (column == kTimeColumn && view == SeasonView::PerMinute)
      continue; // everybody plays a minute a minute
    m_statistics.push_back(leadersOf(column, rows, view, texts));
  }
}

} // namespace hooptab
