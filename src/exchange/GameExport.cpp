#include "exchange/GameExport.h"

#include "bbgame/BbGameWriter.h"
#include "livedata/EuroLeagueWriter.h"
#include "livedata/LiveStatsWriter.h"
#include "livedata/NbaLiveWriter.h"

namespace hooptab {

std::vector<ExportedFile> exportAs(GameFormat format, const ForeignGame& game, const std::string& stem) {
  switch (format) {
  case GameFormat::LiveStats: return {{stem + ".json", writeLiveStats(game)}};
  case GameFormat::EuroLeague:
    return {{stem + "-playbyplay.json", writeEuroLeaguePlayByPlay(game)},
            {stem + "-boxscore.json", writeEuroLeagueBox(game)},
            {stem + "-points.json", writeEuroLeaguePoints(game)}};
  case GameFormat::NbaLive:
    return {{stem + "-playbyplay.json", writeNbaLivePlays(game)},
            {stem + "-boxscore.json", writeNbaLiveBox(game)}};
  case GameFormat::BbGame: return {{stem + ".xml", writeBbGame(game)}};
  }
  return {};
}

} // namespace hooptab
