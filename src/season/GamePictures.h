// The pictures of the season in the words of the language in use: what SeriesView shows of a statistic, or of
// a team's margins, with a tool tip for each game.
#pragma once

#include "season/GameSeries.h"
#include "season/Season.h"
#include "season/SeriesPicture.h"
#include "settings/Settings.h"

namespace hooptab {

struct SeriesWithToolTips {
  SeriesDrawing drawing;
  QStringList toolTips;
};

// `column` is that of a statistic in the season's tables.
[[nodiscard]] SeriesWithToolTips pictureOfStatistic(const SeasonPerson& person, int column,
                                                    const Settings& settings, const Texts& texts);
[[nodiscard]] SeriesWithToolTips pictureOfMargins(const GameSeries& margins, SeasonId team,
                                                  const Season& season, const Texts& texts);

} // namespace hooptab
