#include "season/Qualification.h"

namespace hooptab {

namespace {

constexpr std::int64_t kSecondsPerMinute = 60;

} // namespace

bool Qualification::isMet(const SeasonRow& row, int column, SeasonView view) const {
  const Statistic& led = *seasonColumn(column).statistic;
  return led.tries != 0 ? hasTried(row, led.tries) : !isUnder(row, SeasonTable::Players, view);
}

bool Qualification::hasTried(const SeasonRow& row, ShotKinds kinds) const {
  const std::int64_t tried = row.numbers.attempted(kinds);
  return tried >= std::int64_t{attempts} * row.teamGames;
}

bool Qualification::isUnder(const SeasonRow& row, SeasonTable table, SeasonView view) const {
  const bool isOfTime = view == SeasonView::PerMinute || view == SeasonView::PerForty;
  if (table == SeasonTable::Lines)
    return isOfTime && row.isShort();
  if (isOfTime)
    return row.numbers.seconds < std::int64_t{minutes} * kSecondsPerMinute * row.teamGames;
  return view == SeasonView::PerGame &&
         std::int64_t{row.games} * kMostPercent < std::int64_t{gamesPercent} * row.teamGames;
}

} // namespace hooptab
