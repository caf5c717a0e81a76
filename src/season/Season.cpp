#include "season/Season.h"

#include <utility>

namespace hooptab {

Season::Season(std::shared_ptr<const GameCatalogue> catalogue, std::vector<std::size_t> games,
               const SeasonStatistics::Shown& shown, const Texts& texts, const Qualification& minimum,
               SeasonRating ownRating, const TaskWatch& watch)
    : m_catalogue(std::move(catalogue)),
      m_statistics(std::make_shared<const SeasonStatistics>(*m_catalogue, std::move(games), shown, watch)),
      m_minimum(minimum), m_ownRating(std::move(ownRating)) {
  if (watch.isCancelled())
    return;
  watch.progress(0, 0); // nobody can tell how long what follows takes
  addLeaders(texts);
  if (watch.isCancelled())
    return;
  m_shots = shotsOfGames(*m_catalogue, m_statistics->games());
}

Season::Season(const Season& other, const Qualification& minimum, SeasonRating ownRating, const Texts& texts)
    : m_catalogue(other.m_catalogue), m_statistics(other.m_statistics), m_minimum(minimum),
      m_ownRating(std::move(ownRating)), m_shots(other.m_shots) {
  addLeaders(texts);
}

void Season::addLeaders(const Texts& texts) {
  for (const SeasonView view : kSeasonViews)
    m_leaders.emplace_back(m_statistics->players(), view, texts, m_minimum, m_ownRating);
}

SeasonPerson::SeasonPerson(std::shared_ptr<const Season> ofSeason, const SeasonRow& ofRow, bool isOfLine,
                           const Texts& texts, const TaskWatch& watch)
    : season(std::move(ofSeason)), row(ofRow), isLine(isOfLine) {
  const SeasonStatistics& statistics = season->statistics();
  results = isLine ? statistics.resultsOfLine(row.id, watch) : statistics.resultsOfPlayer(row.id, watch);
  for (const GameResult& result : results) {
    if (watch.isCancelled())
      return;
    records.add(season->catalogue(), result, texts);
  }
  if (!isLine && !watch.isCancelled())
    shots = shotsOfPlayer(season->catalogue(), results, row.id);
}

} // namespace hooptab
