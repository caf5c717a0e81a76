#include "extracts/ExtractSource.h"

#include "game/WallClock.h"

namespace hooptab {

ExtractSource extractSource(const CountedGame& counted, const ProfileText& text) {
  return {counted,
          {readPlayerIds(text, Side::Visitor), readPlayerIds(text, Side::Home)},
          readWallClock(text, counted.game.details.id)};
}

std::string fileNameOf(const Game& game) {
  return game.path.substr(game.path.rfind('/') + 1);
}

std::string gameKey(const Game& game) {
  return game.details.id.empty() ? fileNameOf(game) : game.details.id;
}

} // namespace hooptab
