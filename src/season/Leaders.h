// The leaders of a season: the first ten of each statistic, in totals or averages, of those who have played
// enough. Compares exact averages, not the rounded ones that are shown.
#pragma once

#include "season/Qualification.h"
#include "season/SeasonRating.h"

#include <functional>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace hooptab {

struct Leader {
  int rank = 0; // equal values share one: 1, 1, 3
  const SeasonRow* row = nullptr;
  std::string value; // as the table shows it
  double number = 0; // by which it sorts
};
inline constexpr int kSeasonOwnColumn = 0; // of the user's own rating, which is none of the statistics
struct StatisticLeaders {
  int column = 0; // of the season tables
  std::vector<Leader> leaders;
};

class Leaders {
 public:
  static constexpr std::size_t kShown = 10; // more when the tenth is tied

  // `rows` must outlive the leaders. Only values above 0 lead, of rows that meet the minimum; rows without
  // time lead nothing per minute. Equal values are ordered by fewer games, then by name.
  Leaders(std::span<const SeasonRow> rows, SeasonView view, const Texts& texts,
          const Qualification& minimum = {}, const SeasonRating& ownRating = {});

  // One entry for each statistic, in the order of the columns, those that nobody leads included; behind them
  // the user's own rating, if there is one.
  std::span<const StatisticLeaders> statistics() const& { return m_statistics; }
  void statistics() const&& = delete; // they would be gone

 private:
  std::vector<StatisticLeaders> m_statistics;
};

// Who leads in a value that is no statistic, ordered and tied alike. Only values above 0 lead.
[[nodiscard]] std::vector<Leader>
leadersBy(std::span<const SeasonRow> rows,
          const std::function<std::optional<double>(const SeasonRow&)>& value,
          const std::function<std::string(const SeasonRow&, double)>& text);

// The place that a value has among those of all players who have played enough to lead per game, equal ones
// sharing it; nothing for a player who has not, and for one without that value.
struct LeaderPlace {
  int place = 0;
  int of = 0;
};
[[nodiscard]] std::optional<LeaderPlace>
placeOf(const SeasonRow& row, std::span<const SeasonRow> rows, const Qualification& minimum,
        const std::function<std::optional<double>(const SeasonRow&)>& value);

} // namespace hooptab
