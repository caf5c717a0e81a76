#include "season/Season.h"

#include <utility>

namespace hooptab {

Season::Season(std::shared_ptr<const GameCatalogue> catalogue, std::vector<std::size_t> games,
               const SeasonStatistics::Shown& shown, const Texts& texts)
    : m_catalogue(std::move(catalogue)), m_statistics(*m_catalogue, std::move(games), shown),
      m_shots(shotsOfGames(*m_catalogue, m_statistics.games())) {
  for (const SeasonView view : kSeasonViews)
    m_leaders.emplace_back(m_statistics.players(), view, texts);
}

SeasonPerson::SeasonPerson(std::shared_ptr<const Season> ofSeason, const SeasonRow& ofRow, bool isOfLine,
                           const Texts& texts)
    : season(std::move(ofSeason)), row(ofRow), isLine(isOfLine) {
  const SeasonStatistics& statistics = season->statistics();
  results = isLine ? statistics.resultsOfLine(row.id) : statistics.resultsOfPlayer(row.id);
  for (const GameResult& result : results)
    records.add(season->catalogue(), result, texts);
  if (!isLine)
    shots = shotsOfPlayer(season->catalogue(), results, row.id);
}

} // namespace hooptab
